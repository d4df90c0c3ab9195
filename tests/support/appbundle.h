#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <memory>

namespace testsupport {

// The real quivramac executable and its windows module in a folder of their own with the fake
// etserver beside them, where the app looks first; launched with its output collected. The fake
// binds its port, as the real server does.
class AppBundle
{
public:
    AppBundle();
    ~AppBundle();

    QString filePath(const QString &name) const { return m_folder.filePath(name); }
    void launch(const QStringList &arguments = {},
                const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    // SIGTERM and a wait first: killing the app outright would orphan the server it started.
    void stop();
    QProcess &process() { return *m_app; }

    QString output() const { return QString::fromUtf8(m_output); }
    bool printed(const QString &line) const;
    // Index of the first output line that starts with prefix, or -1.
    qsizetype lineIndex(const QString &prefix) const;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QProcess> m_app;
    QByteArray m_output;
};

// Runs quivractl to the end; its exit code and merged output.
std::pair<int, QString> quivractl(const QStringList &arguments);
QString quivractlPath();

} // namespace testsupport
