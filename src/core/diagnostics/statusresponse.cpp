#include "diagnostics/statusresponse.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace statusjson {
namespace {

// QJsonDocument sorts keys and leaves "/" alone, so the writer is our own; it is tiny because
// the report holds only strings, booleans, one integer and one array.
class Writer
{
public:
    void begin(char bracket)
    {
        separate();
        m_out += bracket;
        m_needsComma = false;
    }
    void end(char bracket)
    {
        m_out += bracket;
        m_needsComma = true;
    }
    void key(const char *name)
    {
        separate();
        m_out += '"' + QByteArray(name) + "\":";
        m_needsComma = false;
    }
    void value(bool b) { scalar(b ? "true" : "false"); }
    void value(int number) { scalar(QByteArray::number(number)); }
    void value(const QString &text) { scalar(quoted(text)); }
    template<typename T> void field(const char *name, const T &v)
    {
        key(name);
        value(v);
    }
    QByteArray result() const { return m_out; }

private:
    void separate()
    {
        if (m_needsComma)
            m_out += ',';
    }
    void scalar(const QByteArray &text)
    {
        separate();
        m_out += text;
        m_needsComma = true;
    }
    static QByteArray quoted(const QString &text)
    {
        QByteArray out = "\"";
        for (const char c : text.toUtf8()) {
            switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '/':
                out += "\\/";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            case '\b':
                out += "\\b";
                break;
            case '\f':
                out += "\\f";
                break;
            default:
                if (uchar(c) < 0x20)
                    out += "\\u00" + QByteArray::number(uchar(c), 16).rightJustified(2, '0');
                else
                    out += c; // UTF-8 bytes pass through unescaped
            }
        }
        return out + '"';
    }

    QByteArray m_out;
    bool m_needsComma = false;
};

void write(Writer &w, const DiagnosticInfo &info)
{
    w.begin('{');
    w.field("id", info.id);
    w.field("name", info.name);
    w.field("passed", info.passed);
    if (info.message)
        w.field("message", *info.message);
    w.field("canFix", info.canFix);
    w.end('}');
}

struct Reader
{
    QString error;

    QJsonValue take(const QJsonObject &object, const QString &key, QJsonValue::Type type,
                    bool optional = false)
    {
        const QJsonValue value = object.value(key);
        if (value.isUndefined() || (optional && value.isNull())) {
            if (!optional && error.isEmpty())
                error = QStringLiteral("missing key \"%1\"").arg(key);
            return QJsonValue::Undefined;
        }
        if (value.type() != type && error.isEmpty())
            error = QStringLiteral("wrong type for key \"%1\"").arg(key);
        return value;
    }
    QString text(const QJsonObject &o, const QString &key)
    {
        return take(o, key, QJsonValue::String).toString();
    }
    bool boolean(const QJsonObject &o, const QString &key)
    {
        return take(o, key, QJsonValue::Bool).toBool();
    }
    std::optional<QString> optionalText(const QJsonObject &o, const QString &key)
    {
        const QJsonValue value = take(o, key, QJsonValue::String, true);
        return value.isUndefined() ? std::nullopt : std::optional(value.toString());
    }
};

} // namespace

QByteArray encode(const StatusResponse &response)
{
    Writer w;
    w.begin('{');
    w.field("ready", response.ready);
    w.key("diagnostics");
    w.begin('[');
    for (const DiagnosticInfo &info : response.diagnostics)
        write(w, info);
    w.end(']');
    w.field("hostname", response.hostname);
    w.field("username", response.username);
    w.field("ip", response.ip);
    if (response.tailscaleIP)
        w.field("tailscaleIP", *response.tailscaleIP);
    w.field("pairingPort", response.pairingPort);
    w.end('}');
    return w.result();
}

std::optional<StatusResponse> decode(const QByteArray &json, QString *error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    Reader r;
    if (!document.isObject())
        r.error = document.isNull() ? parseError.errorString() : QStringLiteral("not an object");
    const QJsonObject o = document.object();
    StatusResponse response;
    response.ready = r.boolean(o, "ready");
    for (const QJsonValue &item : r.take(o, "diagnostics", QJsonValue::Array).toArray()) {
        if (!item.isObject() && r.error.isEmpty())
            r.error = QStringLiteral("wrong type for an element of \"diagnostics\"");
        const QJsonObject d = item.toObject();
        response.diagnostics.append({ r.text(d, "id"), r.text(d, "name"), r.boolean(d, "passed"),
                                      r.optionalText(d, "message"), r.boolean(d, "canFix") });
    }
    response.hostname = r.text(o, "hostname");
    response.username = r.text(o, "username");
    response.ip = r.text(o, "ip");
    response.tailscaleIP = r.optionalText(o, "tailscaleIP");
    const QJsonValue port = r.take(o, "pairingPort", QJsonValue::Double);
    if (port.toDouble() != double(port.toInt()) && r.error.isEmpty())
        r.error = QStringLiteral("wrong type for key \"pairingPort\"");
    response.pairingPort = port.toInt();
    if (error)
        *error = r.error;
    return r.error.isEmpty() ? std::optional(response) : std::nullopt;
}

} // namespace statusjson
