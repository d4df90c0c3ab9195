#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The small, deliberately strict reading of a phone's request text. Lines end in "\r\n" only.
namespace requestparsing {

QStringList lines(const QString &request);

// "METHOD SP target SP HTTP/1.x", header lines "name: value", then an empty line. Anything else
// is not read further: a text without that frame could carry the code into the key's comment.
bool isWellFormed(const QString &request);

// The first header line (from the request line to the empty line) that begins with "name:" in
// any letter case; its value trimmed of spaces and tabs. An empty value is none, and later lines
// are not consulted.
std::optional<QString> headerValue(const QString &name, const QString &request);

// The last piece of the text split at every blank line, or the whole text when there is none.
QString body(const QString &request);

// The request line's one "token=" parameter equals the code exactly, compared in constant time.
bool tokenMatches(const QString &requestLine, const QString &token);

// A browser's request: an Origin header, Sec-Fetch-* headers other than a "Sec-Fetch-Site: none"
// (an address the user typed), or a Host that is none of ours, as after DNS rebinding. A phone
// app sends none of these. Ours: IP literals, "localhost", names under ".local" (where the DNS-SD
// daemon registers this host, under a new name after a conflict) and under ".ts.net" (Tailscale's
// names), with a port or a final dot alike.
bool comesFromWebPage(const QString &request);

// Without control, format, line-breaking or text-direction characters, at most 64 characters:
// a name that cannot pass for another's or break a line.
QString sanitizeDeviceName(const QString &name);

} // namespace requestparsing
