#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The small, deliberately strict reading of a phone's request text. Lines end in "\r\n" only.
namespace requestparsing {

QStringList lines(const QString &request);

// The first line of any kind that begins with "name:" in any letter case; its value trimmed of
// spaces and tabs. An empty value is none, and later lines are not consulted.
std::optional<QString> headerValue(const QString &name, const QString &request);

// The last piece of the text split at every blank line, or the whole text when there is none.
QString body(const QString &request);

// The request line's one "token=" parameter equals the code exactly, compared in constant time.
bool tokenMatches(const QString &requestLine, const QString &token);

// A browser's request: Origin or Sec-Fetch-* headers, or a Host that names no IP address,
// "localhost" or "{hostLabel}.local". A phone app sends none of these.
bool comesFromWebPage(const QString &request, const QString &hostLabel);

// Without terminal escapes and text-direction characters, line breaks and tabs kept: safe to
// print a phone's text.
QString printable(const QString &text);

// Without control, line-breaking or text-direction characters, at most 64 characters.
QString sanitizeDeviceName(const QString &name);

} // namespace requestparsing
