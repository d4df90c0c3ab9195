// Fails when a shipped catalogue does not cover the app's texts: lupdate is run over the sources
// into a copy of each .ts file, and every text must then have a finished translation with the
// placeholders (%1, %n) of its source, and no entry may be left for a text that has gone. The
// English catalogue holds only the plural forms.
//   quivra-cataloguecheck LUPDATE SOURCES.lst FILE.ts...
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

QStringList placeholders(const QString &text)
{
    static const QRegularExpression marker(QStringLiteral("%L?\\d+|%n"));
    QStringList found;
    for (auto it = marker.globalMatch(text); it.hasNext();)
        found += it.next().captured().remove(QLatin1Char('L'));
    found.sort();
    return found;
}

struct Message
{
    QString context, source, type;
    bool numerus = false;
    QStringList forms;
};

QList<Message> read(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return {};
    }
    QList<Message> messages;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            Message m;
            m.context = context;
            m.numerus = xml.attributes().value("numerus") == QLatin1String("yes");
            while (xml.readNextStartElement()) {
                if (xml.name() == QLatin1String("source")) {
                    m.source = xml.readElementText();
                } else if (xml.name() == QLatin1String("translation")) {
                    m.type = xml.attributes().value("type").toString();
                    if (!m.numerus) {
                        m.forms += xml.readElementText();
                        continue;
                    }
                    while (xml.readNextStartElement())
                        m.forms += xml.readElementText();
                } else {
                    xml.skipCurrentElement();
                }
            }
            messages += m;
        }
    }
    if (xml.hasError())
        *error = xml.errorString();
    return messages;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.size() < 3) {
        qCritical("usage: quivra-cataloguecheck LUPDATE SOURCES.lst FILE.ts...");
        return 2;
    }
    const QTemporaryDir work;
    int faults = 0;
    const auto fault = [&faults](const QString &where, const QString &what) {
        qCritical("%s: %s", qPrintable(where), qPrintable(what));
        ++faults;
    };
    for (const QString &shipped : args.mid(2)) {
        const QString name = QFileInfo(shipped).fileName();
        const QString copy = work.filePath(name);
        QFile::copy(shipped, copy);
        QProcess lupdate;
        lupdate.start(args.at(0),
                      { QLatin1Char('@') + args.at(1), QStringLiteral("-locations"),
                        QStringLiteral("none"), QStringLiteral("-ts"), copy });
        if (!lupdate.waitForFinished(60000) || lupdate.exitCode() != 0) {
            fault(name, QStringLiteral("lupdate failed: ") + lupdate.readAllStandardError());
            continue;
        }
        QString error;
        const QList<Message> messages = read(copy, &error);
        if (!error.isEmpty())
            fault(name, error);
        const bool pluralsOnly = name.endsWith(QLatin1String("_en.ts"));
        int finished = 0;
        for (const Message &m : messages) {
            const QString where = name + QLatin1Char(' ') + m.context + QStringLiteral(" \"")
                + m.source.left(50) + QLatin1Char('"');
            if (m.type == QLatin1String("vanished") || m.type == QLatin1String("obsolete")) {
                fault(where, QStringLiteral("is no longer in the sources"));
                continue;
            }
            if (pluralsOnly && !m.numerus)
                continue;
            const bool empty = m.forms.isEmpty()
                || std::any_of(m.forms.begin(), m.forms.end(),
                               [](auto &f) { return f.trimmed().isEmpty(); });
            if (empty || m.type == QLatin1String("unfinished")) {
                fault(where, QStringLiteral("is not translated"));
                continue;
            }
            const auto lost = std::find_if(m.forms.begin(), m.forms.end(), [&m](auto &form) {
                return placeholders(form) != placeholders(m.source);
            });
            if (lost != m.forms.end())
                fault(where, QStringLiteral("has other placeholders: ") + *lost);
            else
                ++finished;
        }
        if (!pluralsOnly)
            qInfo("%s: %d of %d texts translated", qPrintable(name), finished,
                  int(messages.size()));
    }
    return faults == 0 ? 0 : 1;
}
