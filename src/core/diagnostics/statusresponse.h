#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

// One check as the phone sees it.
struct DiagnosticInfo
{
    QString id;
    QString name;
    bool passed = false;
    std::optional<QString> message;
    bool canFix = false;

    friend bool operator==(const DiagnosticInfo &, const DiagnosticInfo &) = default;
};

// The status endpoint's report: is this computer ready for the phone, and how to reach it.
struct StatusResponse
{
    bool ready = false;
    QList<DiagnosticInfo> diagnostics;
    QString hostname;
    QString username;
    QString ip;
    std::optional<QString> tailscaleIP;
    int pairingPort = 0;

    friend bool operator==(const StatusResponse &, const StatusResponse &) = default;
};

namespace statusjson {

// Compact JSON with keys in field order, absent optionals left out, UTF-8 text and "/" written
// as "\/": the form the phone app's own decoder was built against.
QByteArray encode(const StatusResponse &response);

// Reads the same form back; missing required keys and wrong types are errors.
std::optional<StatusResponse> decode(const QByteArray &json, QString *error = nullptr);

} // namespace statusjson
