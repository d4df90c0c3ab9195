#include "model/records.h"

#include <QJsonValue>
#include <QRegularExpression>

#include <array>
#include <cmath>

namespace {

constexpr std::array iconTypeNames { "code",   "terminal", "api",  "database", "bot",    "cloud",
                                     "mobile", "web",      "game", "ai",       "config", "docs" };
constexpr std::array sessionStatusNames { "connected", "disconnected", "terminated" };

const QDateTime referenceDate = QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);

QString uuidText(const QUuid &uuid)
{
    return uuid.toString(QUuid::WithoutBraces).toUpper();
}

double timeValue(const QDateTime &time)
{
    return double(referenceDate.msecsTo(time)) / 1000.0;
}

// Reads one object's fields in order; the first failure is kept and later reads do nothing.
class Reader
{
public:
    Reader(const QJsonObject &object, QString prefix)
        : m_object(object)
        , m_prefix(std::move(prefix))
    { }

    std::optional<DecodeError> error;

    QJsonValue required(const char *key, QJsonValue::Type type)
    {
        const QJsonValue value = m_object.value(QLatin1String(key));
        if (error)
            return {};
        if (value.isUndefined())
            fail(DecodeError::MissingKey, key);
        else if (value.type() != type)
            fail(DecodeError::WrongType, key);
        return value;
    }
    // Missing and null both read as no value.
    std::optional<QJsonValue> optional(const char *key, QJsonValue::Type type)
    {
        const QJsonValue value = m_object.value(QLatin1String(key));
        if (error || value.isUndefined() || value.isNull())
            return std::nullopt;
        if (value.type() != type) {
            fail(DecodeError::WrongType, key);
            return std::nullopt;
        }
        return value;
    }

    QString text(const char *key) { return required(key, QJsonValue::String).toString(); }
    std::optional<QString> optionalText(const char *key)
    {
        const auto value = optional(key, QJsonValue::String);
        return value ? std::optional(value->toString()) : std::nullopt;
    }
    bool boolean(const char *key) { return required(key, QJsonValue::Bool).toBool(); }
    qint64 integer(const char *key)
    {
        const QJsonValue value = required(key, QJsonValue::Double);
        const double number = value.toDouble();
        if (!error && (std::trunc(number) != number || std::abs(number) > 9.007199254740992e15))
            fail(DecodeError::WrongType, key);
        // Converting a number beyond qint64 is undefined, so a refused one is not converted.
        return error ? 0 : qint64(number);
    }
    QUuid uuid(const char *key)
    {
        static const QRegularExpression form(
            QStringLiteral("^[0-9A-Fa-f]{8}-([0-9A-Fa-f]{4}-){3}[0-9A-Fa-f]{12}$"));
        const QString text = required(key, QJsonValue::String).toString();
        if (!error && !form.match(text).hasMatch())
            fail(DecodeError::InvalidUuid, key);
        return QUuid::fromString(text);
    }
    QDateTime time(const char *key) { return fromValue(required(key, QJsonValue::Double), key); }
    std::optional<QDateTime> optionalTime(const char *key)
    {
        const auto value = optional(key, QJsonValue::Double);
        return value ? std::optional(fromValue(*value, key)) : std::nullopt;
    }
    template<typename Enum> Enum raw(const char *key, std::optional<Enum> (*parse)(const QString &))
    {
        const QString text = required(key, QJsonValue::String).toString();
        const std::optional<Enum> value = error ? std::nullopt : parse(text);
        if (!error && !value)
            fail(DecodeError::UnknownRawValue, key);
        return value.value_or(Enum {});
    }
    QString path(const char *key) const { return m_prefix + QLatin1String(key); }
    void fail(DecodeError::Kind kind, const char *key) { error = DecodeError { kind, path(key) }; }

private:
    // Within about 31,000 years of the reference date, where a time in milliseconds survives the
    // trip through a double and back exactly; beyond, it is no real date.
    QDateTime fromValue(const QJsonValue &value, const char *key)
    {
        constexpr double maxSeconds = 1e12;
        const double seconds = value.toDouble();
        if (!error && !(std::abs(seconds) <= maxSeconds))
            fail(DecodeError::WrongType, key);
        return error ? QDateTime() : referenceDate.addMSecs(std::llround(seconds * 1000.0));
    }

    QJsonObject m_object;
    QString m_prefix;
};

template<typename T> Decoded<T> finish(const Reader &reader, T value)
{
    if (reader.error)
        return *reader.error;
    return value;
}

std::optional<DecodeError> notAnObject(const QJsonValue &json, const QString &path)
{
    if (json.isObject())
        return std::nullopt;
    return DecodeError { json.isUndefined() ? DecodeError::MissingKey : DecodeError::WrongType,
                         path };
}

} // namespace

QString DecodeError::message() const
{
    static const char *kinds[] = { "missing key", "wrong type", "invalid uuid", "unknown value" };
    return QStringLiteral("%1 at \"%2\"").arg(QLatin1String(kinds[kind]), path);
}

namespace rawvalue {

QString of(IconType type)
{
    return QLatin1String(iconTypeNames[size_t(type)]);
}

QString of(SessionStatus status)
{
    return QLatin1String(sessionStatusNames[size_t(status)]);
}

std::optional<IconType> iconType(const QString &raw)
{
    for (size_t i = 0; i < iconTypeNames.size(); ++i) {
        if (raw == QLatin1String(iconTypeNames[i]))
            return IconType(i);
    }
    return std::nullopt;
}

std::optional<SessionStatus> sessionStatus(const QString &raw)
{
    for (size_t i = 0; i < sessionStatusNames.size(); ++i) {
        if (raw == QLatin1String(sessionStatusNames[i]))
            return SessionStatus(i);
    }
    return std::nullopt;
}

QList<IconType> allIconTypes()
{
    QList<IconType> all;
    for (size_t i = 0; i < iconTypeNames.size(); ++i)
        all.append(IconType(i));
    return all;
}

} // namespace rawvalue

namespace recordjson {
namespace {

Decoded<ProjectIcon> decodeIcon(const QJsonValue &json, const QString &path)
{
    if (auto error = notAnObject(json, path))
        return *error;
    Reader r(json.toObject(), path.isEmpty() ? path : path + QLatin1Char('.'));
    ProjectIcon icon;
    icon.type = r.raw("type", rawvalue::iconType);
    icon.colorHex = r.text("colorHex");
    return finish(r, icon);
}

template<typename T> void put(QJsonObject &object, const char *key, const std::optional<T> &value)
{
    if (value)
        object.insert(QLatin1String(key), *value);
}

void put(QJsonObject &object, const char *key, const std::optional<QDateTime> &value)
{
    if (value)
        object.insert(QLatin1String(key), timeValue(*value));
}

} // namespace

QJsonObject encode(const HostConfiguration &host)
{
    QJsonObject o { { "id", uuidText(host.id) },
                    { "name", host.name },
                    { "hostname", host.hostname },
                    { "username", host.username },
                    { "port", host.port } };
    put(o, "themeName", host.themeName);
    return o;
}

QJsonObject encode(const Host &host)
{
    QJsonObject o { { "id", uuidText(host.id) },   { "name", host.name },
                    { "hostname", host.hostname }, { "username", host.username },
                    { "sshPort", host.sshPort },   { "etPort", host.etPort } };
    put(o, "lastConnected", host.lastConnected);
    return o;
}

QJsonObject encode(const ProjectIcon &icon)
{
    return { { "type", rawvalue::of(icon.type) }, { "colorHex", icon.colorHex } };
}

QJsonObject encode(const Project &project)
{
    QJsonObject o {
        { "id", uuidText(project.id) },       { "name", project.name },
        { "icon", encode(project.icon) },     { "hostId", uuidText(project.hostId) },
        { "isFavorite", project.isFavorite }, { "createdAt", timeValue(project.createdAt) }
    };
    put(o, "workingDirectory", project.workingDirectory);
    put(o, "customCommand", project.customCommand);
    put(o, "themeName", project.themeName);
    put(o, "lastAccessed", project.lastAccessed);
    return o;
}

QJsonObject encode(const Session &session)
{
    return { { "id", uuidText(session.id) },
             { "projectId", uuidText(session.projectId) },
             { "hostId", uuidText(session.hostId) },
             { "etClientId", session.etClientId },
             { "createdAt", timeValue(session.createdAt) },
             { "lastActive", timeValue(session.lastActive) },
             { "status", rawvalue::of(session.status) } };
}

template<> Decoded<HostConfiguration> decode(const QJsonValue &json)
{
    if (auto error = notAnObject(json, {}))
        return *error;
    Reader r(json.toObject(), {});
    HostConfiguration host;
    host.id = r.uuid("id");
    host.name = r.text("name");
    host.hostname = r.text("hostname");
    host.username = r.text("username");
    host.port = r.integer("port");
    host.themeName = r.optionalText("themeName");
    return finish(r, host);
}

template<> Decoded<Host> decode(const QJsonValue &json)
{
    if (auto error = notAnObject(json, {}))
        return *error;
    Reader r(json.toObject(), {});
    Host host;
    host.id = r.uuid("id");
    host.name = r.text("name");
    host.hostname = r.text("hostname");
    host.username = r.text("username");
    host.sshPort = r.integer("sshPort");
    host.etPort = r.integer("etPort");
    host.lastConnected = r.optionalTime("lastConnected");
    return finish(r, host);
}

template<> Decoded<ProjectIcon> decode(const QJsonValue &json)
{
    return decodeIcon(json, {});
}

template<> Decoded<Project> decode(const QJsonValue &json)
{
    if (auto error = notAnObject(json, {}))
        return *error;
    const QJsonObject object = json.toObject();
    Reader r(object, {});
    Project project;
    project.id = r.uuid("id");
    project.name = r.text("name");
    if (!r.error) {
        const auto icon = decodeIcon(object.value(QLatin1String("icon")), QStringLiteral("icon"));
        if (icon.ok())
            project.icon = icon.value();
        else
            r.error = icon.error();
    }
    project.hostId = r.uuid("hostId");
    project.workingDirectory = r.optionalText("workingDirectory");
    project.customCommand = r.optionalText("customCommand");
    project.themeName = r.optionalText("themeName");
    project.isFavorite = r.boolean("isFavorite");
    project.createdAt = r.time("createdAt");
    project.lastAccessed = r.optionalTime("lastAccessed");
    return finish(r, project);
}

template<> Decoded<Session> decode(const QJsonValue &json)
{
    if (auto error = notAnObject(json, {}))
        return *error;
    Reader r(json.toObject(), {});
    Session session;
    session.id = r.uuid("id");
    session.projectId = r.uuid("projectId");
    session.hostId = r.uuid("hostId");
    session.etClientId = r.text("etClientId");
    session.createdAt = r.time("createdAt");
    session.lastActive = r.time("lastActive");
    session.status = r.raw("status", rawvalue::sessionStatus);
    return finish(r, session);
}

} // namespace recordjson

namespace {

template<typename T> size_t hashOptional(size_t seed, const std::optional<T> &value)
{
    seed = qHashMulti(seed, value.has_value());
    return value ? qHashMulti(seed, *value) : seed;
}

} // namespace

size_t qHash(IconType type, size_t seed)
{
    return qHash(rawvalue::of(type), seed);
}

size_t qHash(SessionStatus status, size_t seed)
{
    return qHash(rawvalue::of(status), seed);
}

size_t qHash(const HostConfiguration &host, size_t seed)
{
    seed = qHashMulti(seed, host.id, host.name, host.hostname, host.username, host.port);
    return hashOptional(seed, host.themeName);
}

size_t qHash(const Host &host, size_t seed)
{
    seed = qHashMulti(seed, host.id, host.name, host.hostname, host.username, host.sshPort,
                      host.etPort);
    return hashOptional(seed, host.lastConnected);
}

size_t qHash(const ProjectIcon &icon, size_t seed)
{
    return qHashMulti(seed, rawvalue::of(icon.type), icon.colorHex);
}

size_t qHash(const Project &p, size_t seed)
{
    seed = qHashMulti(seed, p.id, p.name, p.icon, p.hostId);
    seed = hashOptional(seed, p.workingDirectory);
    seed = hashOptional(seed, p.customCommand);
    seed = hashOptional(seed, p.themeName);
    seed = qHashMulti(seed, p.isFavorite, p.createdAt);
    return hashOptional(seed, p.lastAccessed);
}
