#pragma once

#include <QLoggingCategory>
#include <QString>

#include <functional>

// Where the program's lines go. Each line is logged once, in the category that says where it
// belongs; one message handler writes it there:
//   quivra.console  the program's standard output, one flushed line each;
//   quivra.log      the in-app log's supervision messages;
//   quivra.server   the server's own output, which goes to both.
// Everything else passes on to the handler that was in place before. The usual rules apply, so
// QT_LOGGING_RULES="quivra.console=false" quiets standard output, server output included,
// and leaves the in-app log alone.
Q_DECLARE_LOGGING_CATEGORY(lcConsole)
Q_DECLARE_LOGGING_CATEGORY(lcLog)
Q_DECLARE_LOGGING_CATEGORY(lcServerOutput)

namespace logging {

enum class Entry { Message, ServerOutput };

// The in-app log. It is called on the main thread; lines logged elsewhere are queued there.
using AppLog = std::function<void(Entry kind, const QString &text)>;
// Replaces the in-app log and returns the previous one. Puts the handler in place if another
// has been installed over it since (the test runner installs its own around each run).
AppLog setAppLog(AppLog log);

// Replaces where console lines are written (tests capture them); an empty sink restores
// standard output. Returns the previous sink.
using ConsoleSink = std::function<void(const QString &line)>;
ConsoleSink setConsoleSink(ConsoleSink sink);

// Text a peer sent (a request, a name, an address), made fit for one console or log line: control
// characters, line and paragraph separators and invisible format characters (text direction
// among them) become visible escapes such as \r, \n, \x1b and \u202e, and a backslash is
// doubled, so that nothing in it starts a line of its own or passes for one.
QString oneLine(const QString &text);

// Puts the handler in place; called once at start-up, and safe to call again.
void install();

} // namespace logging
