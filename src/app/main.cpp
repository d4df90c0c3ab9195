#include "app/quivramacapp.h"
#include "platform/quitsignals.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quivra"));
    QCoreApplication::setApplicationName(QStringLiteral("QuivraMac"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUIVRA_VERSION));
    platform::quitOnTerminationSignals(app);

    QuivraMacApp quivra;
    quivra.serverManager();
    return app.exec();
}
