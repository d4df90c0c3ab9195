#include "platform/processtable.h"

#include <csignal>
#include <sys/types.h>

namespace platform {

bool isZombie(qint64 pid);

bool ProcessTable::exists(qint64 pid) const
{
    return pid > 0 && ::kill(pid_t(pid), 0) == 0 && !isZombie(pid);
}

bool ProcessTable::signal(qint64 pid, int signalNumber)
{
    return pid > 0 && ::kill(pid_t(pid), signalNumber) == 0;
}

std::shared_ptr<ProcessTable> ProcessTable::system()
{
    static const auto table = std::make_shared<ProcessTable>();
    return table;
}

} // namespace platform
