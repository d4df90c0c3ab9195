#include "commands.h"
#include "controlclient.h"
#include "platform/translations.h"
#include "text.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

namespace {

struct Command
{
    const char *name;
    const char *summary;
};

constexpr Command commandList[] = {
    { "status",
      QT_TRANSLATE_NOOP("quivractl",
                        "Show the server (and why it is not running), its address, pairing mode "
                        "and the last paired phone.") },
    { "start",
      QT_TRANSLATE_NOOP("quivractl",
                        "Start the Quivra server and wait until it accepts connections (at most "
                        "5 s).") },
    { "stop", QT_TRANSLATE_NOOP("quivractl", "Stop the Quivra server.") },
    { "pair",
      QT_TRANSLATE_NOOP("quivractl",
                        "Switch pairing mode on, show the code and wait for a phone to pair.") },
    { "logs", QT_TRANSLATE_NOOP("quivractl", "Print the app's log.") },
    { "devices",
      QT_TRANSLATE_NOOP("quivractl", "List the phones that can log in to this computer.") },
    { "revoke",
      QT_TRANSLATE_NOOP("quivractl", "Take a phone's key away, by its name or fingerprint.") },
    { "open",
      QT_TRANSLATE_NOOP("quivractl",
                        "Show the app's panel (its setup window while that is open).") },
};

QString overview()
{
    QString text = Text::tr("Usage: quivractl <command> [options]\n\nControls the running "
                            "QuivraMac app.\n\nCommands:\n");
    for (const Command &command : commandList)
        text += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -8)
                    .arg(Text::tr(command.summary));
    return text + Text::tr("\nRun \"quivractl <command> --help\" for a command's options.\n");
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    translations::install();
    QCoreApplication::setApplicationName(QStringLiteral("quivractl"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUIVRA_VERSION));
    QTextStream err(stderr);

    QStringList arguments = app.arguments();
    const QString name = arguments.value(1);
    const auto found =
        std::find_if(std::begin(commandList), std::end(commandList),
                     [&](const Command &c) { return name == QLatin1String(c.name); });
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        QTextStream(stdout) << overview();
        return commands::Success;
    }
    if (found == std::end(commandList)) {
        err << (name.isEmpty() ? QString() : Text::tr("Unknown command \"%1\".\n").arg(name))
            << overview();
        return commands::Usage;
    }

    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(found->summary));
    parser.addHelpOption();
    const QCommandLineOption json(QStringLiteral("json"),
                                  Text::tr("Print the status report a phone receives."));
    const QCommandLineOption follow({ QStringLiteral("f"), QStringLiteral("follow") },
                                    Text::tr("Keep printing new log lines."));
    if (name == QLatin1String("status"))
        parser.addOption(json);
    const QCommandLineOption yes({ QStringLiteral("y"), QStringLiteral("yes") },
                                 Text::tr("Revoke without asking first."));
    if (name == QLatin1String("logs"))
        parser.addOption(follow);
    if (name == QLatin1String("devices"))
        parser.addOption(json);
    if (name == QLatin1String("revoke")) {
        parser.addOption(yes);
        parser.addPositionalArgument(QStringLiteral("phone"),
                                     Text::tr("The phone's name or SHA256 fingerprint."));
    }
    arguments.removeAt(1);
    arguments[0] = QStringLiteral("quivractl ") + name;
    parser.process(arguments);
    const qsizetype wanted = name == QLatin1String("revoke") ? 1 : 0;
    if (parser.positionalArguments().size() < wanted) {
        err << Text::tr("Which phone? Give its name or fingerprint (see quivractl devices).\n");
        return commands::Usage;
    }
    if (parser.positionalArguments().size() > wanted) {
        err << Text::tr("Unexpected argument \"%1\".\n")
                   .arg(parser.positionalArguments().value(wanted));
        return commands::Usage;
    }

    ControlClient client;
    if (const QString reason = client.unreachableReason(); !reason.isEmpty()) {
        err << reason << Qt::endl;
        return commands::NotRunning;
    }
    if (name == QLatin1String("status"))
        return commands::status(client, parser.isSet(json));
    if (name == QLatin1String("start"))
        return commands::start(client);
    if (name == QLatin1String("stop"))
        return commands::stop(client);
    if (name == QLatin1String("pair"))
        return commands::pair(client);
    if (name == QLatin1String("devices"))
        return commands::devices(client, parser.isSet(json));
    if (name == QLatin1String("open"))
        return commands::open();
    if (name == QLatin1String("revoke"))
        return commands::revoke(client, parser.positionalArguments().constFirst(),
                                parser.isSet(yes));
    return commands::logs(client, parser.isSet(follow));
}
