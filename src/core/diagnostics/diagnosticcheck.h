#pragma once

#include <QMetaType>
#include <QString>

// The verdict of one check. Failed and fixable carry the message shown to the user.
struct DiagnosticStatus
{
    Q_GADGET
    Q_PROPERTY(Kind kind MEMBER kind)
    Q_PROPERTY(QString message MEMBER message)

public:
    enum Kind { Pending, Checking, Passed, Failed, Fixable };
    Q_ENUM(Kind)

    Kind kind = Pending;
    QString message;

    static DiagnosticStatus passed() { return { Passed, {} }; }
    static DiagnosticStatus failed(const QString &message) { return { Failed, message }; }
    static DiagnosticStatus fixable(const QString &message) { return { Fixable, message }; }
    bool isProblem() const { return kind == Failed || kind == Fixable; }

    friend bool operator==(const DiagnosticStatus &a, const DiagnosticStatus &b)
    {
        return a.kind == b.kind && (!a.isProblem() || a.message == b.message);
    }
};

struct DiagnosticCheck
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString description MEMBER description)
    Q_PROPERTY(DiagnosticStatus status MEMBER status)
    Q_PROPERTY(bool canAutoFix MEMBER canAutoFix)
    Q_PROPERTY(bool isCritical MEMBER isCritical)

public:
    QString id;
    QString name;
    QString description;
    DiagnosticStatus status;
    bool canAutoFix = false;
    bool isCritical = false;

    // A check is identified by its id; only its status changes.
    friend bool operator==(const DiagnosticCheck &a, const DiagnosticCheck &b)
    {
        return a.id == b.id && a.status == b.status;
    }
};
