#pragma once

#include "onboarding/scheduler.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

// The assistant prompt card's logic: a three-line preview, and a copy of the whole prompt that
// reads "Copied!" for two seconds. Each copy resets on its own schedule.
class PromptCard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString prompt READ prompt WRITE setPrompt NOTIFY promptChanged)
    Q_PROPERTY(QString preview READ preview NOTIFY promptChanged)
    Q_PROPERTY(bool copied READ copied NOTIFY copiedChanged)

public:
    static constexpr std::chrono::milliseconds copiedFor { 2000 };

    explicit PromptCard(QObject *parent = nullptr);
    // Tests run the resets themselves.
    void setScheduler(Scheduler scheduler) { m_schedule = std::move(scheduler); }

    QString prompt() const { return m_prompt; }
    void setPrompt(const QString &prompt);
    QString preview() const;
    bool copied() const { return m_copied; }

    Q_INVOKABLE void copy();

Q_SIGNALS:
    void promptChanged();
    void copiedChanged();
    // The optional onCopied of the card.
    void copiedToClipboard();

private:
    void setCopied(bool copied);

    Scheduler m_schedule = realScheduler();
    QString m_prompt;
    bool m_copied = false;
};
