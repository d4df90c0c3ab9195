#pragma once

#include <QStringList>
#include <QtGlobal>

#include <memory>

namespace platform {

// The process table and signals. Every call refuses a pid of 0 or below, which kill(2) would
// read as a process group.
class ProcessTable
{
public:
    virtual ~ProcessTable() = default;

    // True when the process exists and is not a zombie waiting to be reaped.
    virtual bool exists(qint64 pid) const;
    virtual bool signal(qint64 pid, int signalNumber);
    // True only for a process of the current user whose executable is named exactly "etserver":
    // a command line that merely mentions the word (an editor, a shell loop) never qualifies.
    virtual bool isOwnServer(qint64 pid) const;
    // The process's command line, its program first; empty when it cannot be read.
    virtual QStringList arguments(qint64 pid) const;

    static std::shared_ptr<ProcessTable> system();
};

} // namespace platform
