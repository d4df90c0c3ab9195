#include "ui/promptcard.h"

#include "onboarding/prompts.h"

#include <QClipboard>
#include <QGuiApplication>

PromptCard::PromptCard(QObject *parent)
    : QObject(parent)
{ }

void PromptCard::setPrompt(const QString &prompt)
{
    if (prompt == m_prompt)
        return;
    m_prompt = prompt;
    Q_EMIT promptChanged();
}

QString PromptCard::preview() const
{
    return prompts::preview(m_prompt);
}

void PromptCard::copy()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(m_prompt);
    setCopied(true);
    Q_EMIT copiedToClipboard();
    m_schedule(this, copiedFor, [this] { setCopied(false); });
}

void PromptCard::setCopied(bool copied)
{
    if (copied == m_copied)
        return;
    m_copied = copied;
    Q_EMIT copiedChanged();
}
