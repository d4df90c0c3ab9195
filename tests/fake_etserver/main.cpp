// A stand-in for Eternal Terminal's etserver, for the tests only. It behaves as the real one does
// with the app's command line: runs in the foreground, writes everything to standard output a line
// at a time, dies silently on SIGTERM, exits with code 2 on SIGINT, and aborts shortly after
// failing to bind a taken port. What else it does is chosen by FAKE_ETSERVER_* variables;
// FAKE_ETSERVER_CRASHES=N makes the first N starts with the same log folder abort at once, as a
// server crashing on every start does.
#include <arpa/inet.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const char *setting(const char *name)
{
    const char *value = std::getenv(name);
    return value && *value ? value : nullptr;
}

// "\n", "\t", "\\" and "\xHH" escapes, so a test can ask for several lines or invalid UTF-8.
std::string unescape(const char *text)
{
    std::string out;
    for (const char *p = text; *p; ++p) {
        if (*p != '\\' || !p[1]) {
            out += *p;
            continue;
        }
        ++p;
        if (*p == 'n')
            out += '\n';
        else if (*p == 't')
            out += '\t';
        else if (*p == 'x' && p[1] && p[2]) {
            out += char(std::strtol(std::string(p + 1, 2).c_str(), nullptr, 16));
            p += 2;
        } else
            out += *p;
    }
    return out;
}

void say(const std::string &bytes)
{
    ::write(STDOUT_FILENO, bytes.data(), bytes.size());
}

// Counts this start in the log folder; true while it is one of the first `crashes`.
bool crashesThisTime(const std::string &logdir, long crashes)
{
    const std::string counter = logdir + "/fake-etserver-starts";
    long starts = 0;
    std::ifstream(counter) >> starts;
    std::ofstream(counter) << ++starts << "\n";
    return starts <= crashes;
}

bool argumentsAreExact(int argc, char **argv, int &port, std::string &pidfile)
{
    if (argc != 12)
        return false;
    const char *fixed[][2] = { { argv[1], "--port" },       { argv[3], "--pidfile" },
                               { argv[5], "--logdir" },     { argv[7], "--serverfifo" },
                               { argv[8], "/tmp/et.fifo" }, { argv[9], "--logtostdout" },
                               { argv[10], "--verbose" },   { argv[11], "1" } };
    for (const auto &pair : fixed) {
        if (std::strcmp(pair[0], pair[1]) != 0)
            return false;
    }
    port = std::atoi(argv[2]);
    pidfile = argv[4];
    return port > 0 && pidfile == std::string(argv[6]) + "/etserver.pid";
}

void onInterrupt(int)
{
    const char line[] = "[INFO etserver-main] Got SIGINT, exiting\n";
    ::write(STDOUT_FILENO, line, sizeof line - 1);
    ::_exit(2);
}

} // namespace

int main(int argc, char **argv)
{
    int port = 0;
    std::string pidfile;
    if (!argumentsAreExact(argc, argv, port, pidfile)) {
        say("fake etserver: unexpected arguments\n");
        return 64;
    }
    if (const char *crashes = setting("FAKE_ETSERVER_CRASHES")) {
        if (crashesThisTime(argv[6], std::atol(crashes))) {
            say("[FATAL etserver-main] crashing as scheduled\n");
            std::abort();
        }
    }
    std::signal(SIGINT, onInterrupt);
    if (setting("FAKE_ETSERVER_IGNORE_TERM"))
        std::signal(SIGTERM, SIG_IGN);
    if (setting("FAKE_ETSERVER_WRITE_PIDFILE"))
        std::ofstream(pidfile) << getpid() << "\n";

    if (setting("FAKE_ETSERVER_BIND")) {
        const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address {};
        address.sin_family = AF_INET;
        address.sin_port = htons(uint16_t(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0) {
            say("[ERROR etserver-main TcpSocketHandler.cpp:210] Error binding 2/1/6: 98 Address "
                "already in use\n");
            ::usleep(800000);
            std::abort();
        }
        ::listen(fd, 4);
        say("[INFO etserver-main TcpSocketHandler.cpp:233] Listening on 0.0.0.0:"
            + std::to_string(port) + "/2/1/6\n");
    }
    if (const char *output = setting("FAKE_ETSERVER_OUTPUT"))
        say(unescape(output));
    if (const char *burst = setting("FAKE_ETSERVER_BURST_BYTES")) {
        // As fast as it can: whole lines, in writes of the size stdio uses for a pipe unless told.
        const std::string line = "[INFO etserver-main] burst line of server output, 48 bytes\n";
        const char *writeBytes = setting("FAKE_ETSERVER_BURST_WRITE_BYTES");
        const size_t blockBytes = writeBytes ? size_t(std::atol(writeBytes)) : 4096;
        std::string block = line;
        while (block.size() + line.size() <= blockBytes)
            block += line;
        for (long written = 0, total = std::atol(burst); written < total;
             written += long(block.size()))
            say(block);
    }
    if (const char *code = setting("FAKE_ETSERVER_EXIT_CODE"))
        return std::atoi(code);
    for (;;)
        ::pause();
}
