#pragma once

#include <QString>

// What is looked at before etserver is launched, and tidied around it: it fails without a clear
// word when its port is taken or another user's socket sits at its FIFO path.
namespace serverchecks {

// Something already listens on the port (on any address), so etserver could not bind it.
bool portInUse(quint16 port);

// Something of another user than `uid` sits at the path (a socket left by their server, which
// this user may not replace in /tmp).
bool ownedByAnotherUser(const QString &path, uint uid);
// The current user's id.
uint currentUser();

// Removes the socket a stopped etserver leaves behind, so that it cannot keep another user's
// server from starting: only a socket of this user's that no one serves any more (a connection
// to it is refused). A live one is another process's, whatever made it.
void removeStaleSocket(const QString &path);

// Keeps the newest `keep` etserver-*.log files in the folder and deletes the older ones.
inline constexpr int keptServerLogs = 10;
void pruneServerLogs(const QString &folder, int keep = keptServerLogs);

} // namespace serverchecks
