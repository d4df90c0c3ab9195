#include "platform/dnssddaemonwatch.h"

namespace platform {

struct DnsSdDaemonWatch::Watches
{
};

DnsSdDaemonWatch::DnsSdDaemonWatch(QObject *parent)
    : QObject(parent)
{ }

DnsSdDaemonWatch::~DnsSdDaemonWatch() = default;

void DnsSdDaemonWatch::start() { }

void DnsSdDaemonWatch::stop() { }

} // namespace platform
