#pragma once

#include "model/decoded.h"

#include <QDateTime>
#include <QHashFunctions>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

// Construction from the given fields gives a new random id and, where a record has them, the
// current time; decoding takes every field from its input.
//
// The phone app's records of remote hosts, projects and terminal sessions, with the JSON form
// its data uses: keys equal to the field names, optional fields left out when empty (missing or
// null accepted), unknown keys ignored, uuids as upper-case 36-character text (any case read).
//
// Timestamps are a JSON number of seconds since 2001-01-01T00:00:00Z, with a fraction: the form
// the phone app's own platform coder writes when no date strategy is configured, as for these
// records. Milliseconds survive a round trip.

enum class IconType {
    code,
    terminal,
    api,
    database,
    bot,
    cloud,
    mobile,
    web,
    game,
    ai,
    config,
    docs
};
enum class SessionStatus { connected, disconnected, terminated };

namespace rawvalue {
QString of(IconType type);
QString of(SessionStatus status);
// Exactly one of the raw values, letter case included; nothing for any other text.
std::optional<IconType> iconType(const QString &raw);
std::optional<SessionStatus> sessionStatus(const QString &raw);
QList<IconType> allIconTypes();
} // namespace rawvalue

struct HostConfiguration
{
    HostConfiguration() = default;
    HostConfiguration(QString name, QString hostname, QString username, qint64 port,
                      std::optional<QString> themeName = std::nullopt)
        : name(std::move(name))
        , hostname(std::move(hostname))
        , username(std::move(username))
        , port(port)
        , themeName(std::move(themeName))
    { }

    QUuid id = QUuid::createUuid();
    QString name;
    QString hostname;
    QString username;
    qint64 port = 0;
    std::optional<QString> themeName;

    friend bool operator==(const HostConfiguration &, const HostConfiguration &) = default;
};

struct Host
{
    Host() = default;
    Host(QString name, QString hostname, QString username, qint64 sshPort, qint64 etPort)
        : name(std::move(name))
        , hostname(std::move(hostname))
        , username(std::move(username))
        , sshPort(sshPort)
        , etPort(etPort)
    { }

    QUuid id = QUuid::createUuid();
    QString name;
    QString hostname;
    QString username;
    qint64 sshPort = 0;
    qint64 etPort = 0;
    std::optional<QDateTime> lastConnected;

    friend bool operator==(const Host &, const Host &) = default;
};

struct ProjectIcon
{
    IconType type = IconType::code;
    QString colorHex;

    friend bool operator==(const ProjectIcon &, const ProjectIcon &) = default;
};

struct Project
{
    Project() = default;
    Project(QString name, ProjectIcon icon, QUuid hostId, std::optional<QString> workingDirectory,
            std::optional<QString> customCommand, std::optional<QString> themeName, bool isFavorite)
        : name(std::move(name))
        , icon(std::move(icon))
        , hostId(hostId)
        , workingDirectory(std::move(workingDirectory))
        , customCommand(std::move(customCommand))
        , themeName(std::move(themeName))
        , isFavorite(isFavorite)
    { }

    QUuid id = QUuid::createUuid();
    QString name;
    ProjectIcon icon;
    QUuid hostId;
    std::optional<QString> workingDirectory;
    std::optional<QString> customCommand;
    std::optional<QString> themeName;
    bool isFavorite = false;
    QDateTime createdAt = QDateTime::currentDateTimeUtc();
    std::optional<QDateTime> lastAccessed;

    friend bool operator==(const Project &, const Project &) = default;
};

// Identified by its id alone: no equality and no hash.
struct Session
{
    Session() = default;
    Session(QUuid projectId, QUuid hostId, QString etClientId, SessionStatus status)
        : projectId(projectId)
        , hostId(hostId)
        , etClientId(std::move(etClientId))
        , status(status)
    { }

    QUuid id = QUuid::createUuid();
    QUuid projectId;
    QUuid hostId;
    QString etClientId;
    QDateTime createdAt = QDateTime::currentDateTimeUtc();
    QDateTime lastActive = createdAt;
    SessionStatus status = SessionStatus::connected;
};

namespace recordjson {
QJsonObject encode(const HostConfiguration &host);
QJsonObject encode(const Host &host);
QJsonObject encode(const ProjectIcon &icon);
QJsonObject encode(const Project &project);
QJsonObject encode(const Session &session);

template<typename T> Decoded<T> decode(const QJsonValue &json);
} // namespace recordjson

size_t qHash(IconType type, size_t seed = 0);
size_t qHash(SessionStatus status, size_t seed = 0);
size_t qHash(const HostConfiguration &host, size_t seed = 0);
size_t qHash(const Host &host, size_t seed = 0);
size_t qHash(const ProjectIcon &icon, size_t seed = 0);
size_t qHash(const Project &project, size_t seed = 0);

// For standard containers too.
template<typename T>
requires requires(const T &t)
{
    ::qHash(t, size_t(0));
}
struct RecordHash
{
    size_t operator()(const T &value) const { return ::qHash(value, 0); }
};
template<> struct std::hash<HostConfiguration> : RecordHash<HostConfiguration>
{
};
template<> struct std::hash<Host> : RecordHash<Host>
{
};
template<> struct std::hash<Project> : RecordHash<Project>
{
};
template<> struct std::hash<ProjectIcon> : RecordHash<ProjectIcon>
{
};
