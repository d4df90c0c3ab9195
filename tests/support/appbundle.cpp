#include "appbundle.h"

#include "testsupport.h"

namespace testsupport {

AppBundle::AppBundle()
{
    QFile::copy(QStringLiteral(QUIVRA_APP_EXECUTABLE), filePath("quivramac"));
    QFile::copy(QStringLiteral(QUIVRA_WINDOWS_MODULE), filePath("quivramac-windows.so"));
    QFile::copy(fakeEtserverPath(), filePath("etserver"));
    for (const char *name : { "quivramac", "quivramac-windows.so", "etserver" })
        QFile::setPermissions(filePath(name), QFile::ExeOwner | QFile::ReadOwner);
}

AppBundle::~AppBundle()
{
    stop();
}

void AppBundle::launch(const QStringList &arguments, const QProcessEnvironment &environment)
{
    m_output.clear();
    m_app = std::make_unique<QProcess>();
    m_app->setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment withBinding = environment;
    withBinding.insert("FAKE_ETSERVER_BIND", "1");
    m_app->setProcessEnvironment(withBinding);
    QObject::connect(m_app.get(), &QProcess::readyRead, [this] { m_output += m_app->readAll(); });
    m_app->start(filePath("quivramac"), arguments);
    m_app->waitForStarted();
}

void AppBundle::stop()
{
    if (!m_app || m_app->state() == QProcess::NotRunning)
        return;
    m_app->terminate();
    if (!m_app->waitForFinished(5000)) {
        m_app->kill();
        m_app->waitForFinished();
    }
}

bool AppBundle::printed(const QString &line) const
{
    return output().split('\n').contains(line);
}

qsizetype AppBundle::lineIndex(const QString &prefix) const
{
    const QStringList lines = output().split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(prefix))
            return i;
    }
    return -1;
}

QString quivractlPath()
{
    return QStringLiteral(QUIVRACTL_EXECUTABLE);
}

std::pair<int, QString> quivractl(const QStringList &arguments)
{
    QProcess ctl;
    ctl.setProcessChannelMode(QProcess::MergedChannels);
    ctl.start(quivractlPath(), arguments);
    ctl.waitForFinished(20000);
    return { ctl.exitCode(), QString::fromUtf8(ctl.readAll()) };
}

} // namespace testsupport
