#include "ui/viewobjects.h"

#include <QQmlEngine>

namespace {

// Rides on the engine as its child, so the set goes with the engine.
class Holder : public QObject
{
    Q_OBJECT

public:
    Holder(const ViewObjects &objects, QObject *engine)
        : QObject(engine)
        , objects(objects)
    { }
    const ViewObjects objects;
};

} // namespace

void ViewObjects::provideTo(QQmlEngine *engine) const
{
    delete engine->findChild<Holder *>(QString(), Qt::FindDirectChildrenOnly);
    new Holder(*this, engine);
}

ViewObjects ViewObjects::of(QQmlEngine *engine)
{
    const auto *holder = engine->findChild<Holder *>(QString(), Qt::FindDirectChildrenOnly);
    return holder ? holder->objects : ViewObjects {};
}

void ViewObjects::missing(QQmlEngine *engine)
{
    qWarning() << "A view asked for an object this QML engine was not given:" << engine;
}

#include "viewobjects.moc"
