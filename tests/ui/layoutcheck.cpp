#include "layoutcheck.h"

#include "testsupport.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace layoutcheck {
namespace {

// Half a pixel of rounding is not a fault.
constexpr qreal slack = 0.5;

QString describe(const QQuickItem *item)
{
    QString name = item->objectName();
    if (name.isEmpty())
        name = item->property("text").toString().left(40);
    if (name.isEmpty())
        name = item->property("title").toString();
    const QString type = QString::fromLatin1(item->metaObject()->className()).section('_', 0, 0);
    return name.isEmpty() ? type : QStringLiteral("%1 \"%2\"").arg(type, name);
}

bool isText(const QQuickItem *item)
{
    return (item->inherits("QQuickText") || item->inherits("QQuickTextEdit"))
        && !item->property("text").toString().isEmpty();
}

bool isControl(const QQuickItem *item)
{
    return item->inherits("QQuickAbstractButton");
}

qreal effectiveOpacity(const QQuickItem *item)
{
    qreal opacity = 1;
    for (; item; item = item->parentItem())
        opacity *= item->opacity();
    return opacity;
}

// The box the item paints: a text's content may be wider or taller than the item itself.
QRectF paintedRect(const QQuickItem *item)
{
    QRectF box(0, 0, item->width(), item->height());
    if (!isText(item))
        return box;
    const qreal contentWidth = item->property("contentWidth").toReal();
    const qreal contentHeight = item->property("contentHeight").toReal();
    if (contentWidth > box.width()) {
        const int align = item->property("effectiveHorizontalAlignment").toInt();
        const qreal extra = contentWidth - box.width();
        box.setLeft(align & Qt::AlignRight ? -extra : align & Qt::AlignHCenter ? -extra / 2 : 0);
        box.setWidth(contentWidth);
    }
    box.setHeight(std::max(box.height(), contentHeight));
    return box;
}

bool inside(const QRectF &inner, const QRectF &outer)
{
    return inner.left() >= outer.left() - slack && inner.top() >= outer.top() - slack
        && inner.right() <= outer.right() + slack && inner.bottom() <= outer.bottom() + slack;
}

// Where the item can be seen: inside every clipping ancestor and the window, except that a
// scroll area's content counts whole, since scrolling brings any of it into view.
QString placementFault(const QQuickItem *item, const QQuickWindow *window)
{
    QRectF rect = item->mapRectToScene(paintedRect(item));
    for (const QQuickItem *up = item->parentItem(); up; up = up->parentItem()) {
        if (up->inherits("QQuickFlickable")) {
            // An unset content size (-1) is the view's own; lists start at their origin.
            const auto *content = up->property("contentItem").value<QQuickItem *>();
            const qreal width = up->property("contentWidth").toReal();
            const qreal height = up->property("contentHeight").toReal();
            const QRectF scrollable = content->mapRectToScene(
                QRectF(up->property("originX").toReal(), up->property("originY").toReal(),
                       std::max(width, up->width()), std::max(height, up->height())));
            if (!inside(rect, scrollable))
                return QStringLiteral("beyond the end of its scroll area");
            rect = up->mapRectToScene(QRectF(0, 0, up->width(), up->height()));
        } else if (up->clip() && !inside(rect, up->mapRectToScene(up->boundingRect()))) {
            return QStringLiteral("cut off by %1").arg(describe(up));
        }
    }
    const QRectF windowRect(0, 0, window->width(), window->height());
    if (!inside(rect, windowRect))
        return QStringLiteral("outside the window (%1,%2 %3x%4 in %5x%6)")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height())
            .arg(window->width())
            .arg(window->height());
    return {};
}

void collect(QQuickItem *item, QList<QQuickItem *> &texts, QList<QQuickItem *> &controls)
{
    if (!item->isVisible() || effectiveOpacity(item) < 0.01)
        return;
    if (isText(item))
        texts.append(item);
    if (isControl(item))
        controls.append(item);
    const auto children = item->childItems();
    for (QQuickItem *child : children)
        collect(child, texts, controls);
}

bool isAncestor(const QQuickItem *maybe, const QQuickItem *item)
{
    for (const QQuickItem *up = item->parentItem(); up; up = up->parentItem())
        if (up == maybe)
            return true;
    return false;
}

} // namespace

QStringList faults(QQuickWindow *window)
{
    QList<QQuickItem *> texts;
    QList<QQuickItem *> controls;
    collect(window->contentItem(), texts, controls);

    QStringList found;
    for (QQuickItem *item : texts + controls) {
        if (const QString fault = placementFault(item, window); !fault.isEmpty())
            found.append(describe(item) + ": " + fault);
    }
    for (QQuickItem *text : std::as_const(texts)) {
        // A text may say it can be shortened (a name sent by a phone, say) with `mayElide`.
        if (text->property("truncated").toBool() && !text->property("mayElide").toBool())
            found.append(describe(text) + ": cut short");
    }
    // Names and log lines come from phones: a text that may read its content as markup would
    // render a tag, or fetch the image it names. Only styled text built from escaped parts may.
    for (QQuickItem *text : std::as_const(texts)) {
        // Controls' own labels (buttons, check boxes) show titles of ours.
        const QString type =
            QString::fromLatin1(text->metaObject()->className()).section('_', 0, 0);
        if (type != QLatin1String("QQuickText") && type != QLatin1String("QQuickTextEdit"))
            continue;
        const int format = text->property("textFormat").toInt();
        const bool markup = format == 1 || format == 2 || format == 3; // rich, automatic, markdown
        if (markup)
            found.append(describe(text) + ": may read its text as markup");
    }
#ifndef Q_OS_MACOS
    for (QQuickItem *text : std::as_const(texts)) {
        if (testsupport::speaksOfAMac(text->property("text").toString()))
            found.append(describe(text) + ": speaks of a Mac");
    }
#endif
    for (qsizetype i = 0; i < controls.size(); ++i) {
        for (qsizetype j = i + 1; j < controls.size(); ++j) {
            const QQuickItem *a = controls[i];
            const QQuickItem *b = controls[j];
            if (isAncestor(a, b) || isAncestor(b, a))
                continue;
            const QRectF overlap = a->mapRectToScene(a->boundingRect())
                                       .intersected(b->mapRectToScene(b->boundingRect()));
            if (overlap.width() > 1 && overlap.height() > 1)
                found.append(describe(a) + " and " + describe(b) + ": on top of each other");
        }
    }
    return found;
}

namespace {

// Finite animations declared on the item (directly or inside a Behavior) that still run.
bool animating(const QObject *object)
{
    const auto children = object->children();
    for (const QObject *child : children) {
        if (child->inherits("QQuickAbstractAnimation")) {
            if (child->property("running").toBool() && child->property("loops").toInt() != -1)
                return true;
        } else if (!child->inherits("QQuickItem") && animating(child)) {
            return true;
        }
    }
    return false;
}

bool moving(const QQuickItem *item)
{
    if (item->inherits("QQuickStackView") && item->property("busy").toBool())
        return true;
    if (animating(item))
        return true;
    const auto children = item->childItems();
    return std::any_of(children.begin(), children.end(), moving);
}

} // namespace

bool settled(QQuickWindow *window)
{
    return !moving(window->contentItem());
}

} // namespace layoutcheck
