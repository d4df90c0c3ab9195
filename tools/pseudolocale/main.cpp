// Writes a pseudo-language catalogue from one of the app's .ts files: every text about 40% longer
// and in accented letters ("Settings" -> "[Šéţţîñĝš one two]"), with its placeholders, markup and
// line breaks left as they are, so that the screenshots show where a longer language would not
// fit and which text never went through tr().
//   quivra-pseudolocale IN.ts OUT.ts
#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cmath>

namespace {

QString accented(const QString &text)
{
    static const QString plain =
        QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    static const QString marked =
        QStringLiteral("áƀçđéƒĝĥîĵķļɱñöþǫŕšţûṽŵẋýžÅƁÇĐÉƑĜĤÎĴĶĻṀÑÖÞǪŔŠŢÛṼŴẊÝŽ");
    // Placeholders (%1, %n, %L1), tags and entities stay readable to Qt and to the text's format.
    static const QRegularExpression kept(QStringLiteral("%L?\\d+|%n|<[^>]*>|&\\w+;"));
    QString result;
    qsizetype done = 0;
    const auto convert = [&](qsizetype end) {
        for (; done < end; ++done) {
            const qsizetype at = plain.indexOf(text.at(done));
            result += at >= 0 ? marked.at(at) : text.at(done);
        }
    };
    for (auto it = kept.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        convert(match.capturedStart());
        result += match.captured();
        done = match.capturedEnd();
    }
    convert(text.size());
    return result;
}

QString pseudo(const QString &source)
{
    static const QStringList words = QStringLiteral("one two three four five six seven eight nine "
                                                    "ten eleven twelve thirteen fourteen fifteen "
                                                    "sixteen seventeen eighteen nineteen twenty")
                                         .split(QLatin1Char(' '));
    // Brackets and padding together make the text 40% longer, at least one word.
    const qsizetype wanted = qsizetype(std::ceil(source.size() * 0.4)) - 2;
    QString padding;
    for (qsizetype i = 0; padding.isEmpty() || padding.size() < wanted; ++i)
        padding += QLatin1Char(' ') + words.at(i % words.size());
    return QLatin1Char('[') + accented(source) + padding + QLatin1Char(']');
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        qCritical("usage: quivra-pseudolocale IN.ts OUT.ts");
        return 2;
    }
    QFile in(QString::fromLocal8Bit(argv[1]));
    QFile out(QString::fromLocal8Bit(argv[2]));
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        qCritical("cannot read %s or write %s", argv[1], argv[2]);
        return 1;
    }
    QXmlStreamReader reader(&in);
    QXmlStreamWriter writer(&out);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    writer.writeStartElement(QStringLiteral("TS"));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    writer.writeAttribute(QStringLiteral("language"), QStringLiteral("en"));
    QString context;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("message")) {
            const bool numerus =
                reader.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            QString source, comment;
            // The English plural forms where the input has them ("1 other address").
            QStringList forms;
            while (reader.readNextStartElement()) {
                if (reader.name() == QLatin1String("source")) {
                    source = reader.readElementText();
                } else if (reader.name() == QLatin1String("comment")) {
                    comment = reader.readElementText();
                } else if (numerus && reader.name() == QLatin1String("translation")) {
                    while (reader.readNextStartElement())
                        forms += reader.readElementText();
                } else {
                    reader.skipCurrentElement();
                }
            }
            if (forms.size() != 2)
                forms = { source, source };
            writer.writeStartElement(QStringLiteral("context"));
            writer.writeTextElement(QStringLiteral("name"), context);
            writer.writeStartElement(QStringLiteral("message"));
            if (numerus)
                writer.writeAttribute(QStringLiteral("numerus"), QStringLiteral("yes"));
            writer.writeTextElement(QStringLiteral("source"), source);
            if (!comment.isEmpty())
                writer.writeTextElement(QStringLiteral("comment"), comment);
            writer.writeStartElement(QStringLiteral("translation"));
            if (numerus) {
                for (const QString &form : forms)
                    writer.writeTextElement(QStringLiteral("numerusform"), pseudo(form));
            } else {
                writer.writeCharacters(pseudo(source));
            }
            writer.writeEndElement();
            writer.writeEndElement();
            writer.writeEndElement();
        }
    }
    writer.writeEndDocument();
    if (reader.hasError()) {
        qCritical("%s: %s", argv[1], qPrintable(reader.errorString()));
        return 1;
    }
    return 0;
}
