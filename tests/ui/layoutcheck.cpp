#include "layoutcheck.h"

#include "testsupport.h"

#include <QHash>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include <cmath>
#include <optional>

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

// Relative luminance as WCAG defines it, from 0 (black) to 1 (white).
double luminance(QColor colour)
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double contrast(QColor a, QColor b)
{
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

bool enabled(const QQuickItem *item)
{
    for (; item; item = item->parentItem())
        if (!item->isEnabled())
            return false;
    return true;
}

// What the text is drawn on: the colour most of its box shows, glyphs being the smaller part.
// The part of the item's box a person can see now: inside every clipping ancestor and scroll
// area's view.
QRectF visibleRect(const QQuickItem *item)
{
    QRectF visible = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    for (const QQuickItem *up = item->parentItem(); up; up = up->parentItem()) {
        if (up->clip() || up->inherits("QQuickFlickable"))
            visible &= up->mapRectToScene(QRectF(0, 0, up->width(), up->height()));
    }
    return visible;
}

// None where the text is not on screen (scrolled out of view) or lies on nothing painted.
std::optional<QColor> backgroundUnder(const QQuickItem *item, const QImage &grab, qreal scale)
{
    const QRectF visible = visibleRect(item);
    const qreal area = item->width() * item->height();
    if (visible.width() * visible.height() < area / 2)
        return std::nullopt;
    const QRect box = QRectF(visible.topLeft() * scale, visible.size() * scale)
                          .toAlignedRect()
                          .intersected(grab.rect());
    QHash<QRgb, int> seen;
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x)
            ++seen[grab.pixel(x, y)];
    QRgb most = 0;
    int count = 0;
    for (auto it = seen.cbegin(); it != seen.cend(); ++it) {
        if (it.value() > count) {
            most = it.key();
            count = it.value();
        }
    }
    if (count == 0 || qAlpha(most) < 255)
        return std::nullopt;
    return QColor(most);
}

// WCAG AA: 4.5:1 for text, 3:1 for large text (24 px, or 18.66 px bold). A disabled control's
// text is exempt.
QString contrastFault(const QQuickItem *text, const QImage &grab, qreal scale)
{
    if (!enabled(text))
        return {};
    const std::optional<QColor> under = backgroundUnder(text, grab, scale);
    if (!under)
        return {};
    const QColor background = *under;
    QColor ink = text->property("color").value<QColor>();
    const qreal alpha = ink.alphaF() * effectiveOpacity(text);
    ink = QColor::fromRgbF(ink.redF() * alpha + background.redF() * (1 - alpha),
                           ink.greenF() * alpha + background.greenF() * (1 - alpha),
                           ink.blueF() * alpha + background.blueF() * (1 - alpha));
    const QFont font = text->property("font").value<QFont>();
    const qreal pixels = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * 4 / 3;
    const bool large = pixels >= 24 || (pixels >= 18.66 && font.weight() >= QFont::DemiBold);
    const double ratio = contrast(ink, background);
    if (ratio >= (large ? 3.0 : 4.5))
        return {};
    return QStringLiteral("%1 on %2 is %3:1")
        .arg(ink.name(), background.name())
        .arg(ratio, 0, 'f', 1);
}

bool isAncestor(const QQuickItem *maybe, const QQuickItem *item)
{
    for (const QQuickItem *up = item->parentItem(); up; up = up->parentItem())
        if (up == maybe)
            return true;
    return false;
}

// The open modal sheet, whose dimmed window behind is neither read nor clicked; none without.
QQuickItem *modalSheet(QQuickItem *item)
{
    const auto children = item->childItems();
    for (QQuickItem *child : children) {
        if (child->inherits("QQuickPopupItem") && child->isVisible() && child->parent()
            && child->parent()->property("modal").toBool())
            return child;
        if (QQuickItem *found = modalSheet(child))
            return found;
    }
    return nullptr;
}

} // namespace

QStringList faults(QQuickWindow *window)
{
    QList<QQuickItem *> texts;
    QList<QQuickItem *> controls;
    QQuickItem *sheet = modalSheet(window->contentItem());
    collect(sheet ? sheet : window->contentItem(), texts, controls);

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
    const QImage grab = window->grabWindow();
    const qreal scale = grab.width() / qreal(window->width());
    for (QQuickItem *text : std::as_const(texts)) {
        if (const QString fault = contrastFault(text, grab, scale); !fault.isEmpty())
            found.append(describe(text) + ": too little contrast, " + fault);
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
            // Only what shows: a control scrolled out of view under another is not in its way.
            const QRectF overlap = visibleRect(a).intersected(visibleRect(b));
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
    // A popup is placed when it has opened and the overlay it sizes itself by has a size.
    if (item->inherits("QQuickPopupItem") && item->isVisible()
        && (item->width() <= 0 || item->height() <= 0 || !item->parent()
            || !item->parent()->property("opened").toBool()))
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
