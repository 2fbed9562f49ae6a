#pragma once

#include <memory>

#include <functional>

// Shared by the base-layer tests: painting a widget on its own, finding what
// it painted, and the notification contract of properties.

#include "bzcssdata.h"
#include "bzthemeutils.h"

#include <QImage>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

namespace BzTest {

inline BzColorSet set(const char* name) {
    return BzThemeUtils::getColorSet(QString::fromLatin1(name));
}

inline BzCSSData record(const char* background, const char* text, int radius = 0) {
    BzCSSData data;
    data.backgroundColorSet = QString::fromLatin1(background);
    data.textColorSet = QString::fromLatin1(text);
    data.borderRadius = radius;
    return data;
}

inline BzCSSData primary(int radius = 0) {
    return record("button-primary-background", "button-primary-text", radius);
}

// A transparent image of `size` logical pixels, device pixels truncated.
inline QImage canvas(const QSize& size, qreal dpr = 1.0) {
    QImage image(QSize(int(size.width() * dpr), int(size.height() * dpr)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::transparent);
    return image;
}

// The widget alone on a transparent image: grab() would show the parent's
// background wherever the widget paints nothing.
inline QImage paint(QWidget& widget, qreal dpr = 1.0) {
    QImage image(QSize(qRound(widget.width() * dpr), qRound(widget.height() * dpr)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// The colour text is painted in: that of the most opaque pixel (glyph stems
// are fully covered) of the widget painted alone.
inline QColor textColour(QWidget& widget) {
    widget.resize(widget.sizeHint().expandedTo(QSize(40, 20)));
    const QImage image = paint(widget).convertToFormat(QImage::Format_ARGB32);
    QColor best(0, 0, 0, 0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > best.alpha())
                best = QColor::fromRgba(image.pixel(x, y));
    return best;
}

// The colour of the most opaque pixel inside `area` of `image`.
inline QColor strongestIn(const QImage& image, const QRect& area) {
    QColor best(0, 0, 0, 0);
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(x, y).alpha() > best.alpha())
                best = image.pixelColor(x, y);
    return best;
}

// Bounding box, in device pixels, of the pixels exactly `color` (alpha aside).
inline QRect boxOf(const QImage& image, const QColor& color) {
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).rgb() == color.rgb())
                box |= QRect(x, y, 1, 1);
    return box;
}

// `top` blended over the opaque `bottom`.
inline QColor over(const QColor& top, const QColor& bottom) {
    const qreal a = top.alphaF();
    return QColor::fromRgbF(top.redF() * a + bottom.redF() * (1 - a),
                            top.greenF() * a + bottom.greenF() * (1 - a),
                            top.blueF() * a + bottom.blueF() * (1 - a));
}

inline bool near(const QColor& a, const QColor& b, int tolerance = 2) {
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
           qAbs(a.blue() - b.blue()) <= tolerance;
}

// A value other than `current` for the common property types; invalid if none.
inline QVariant otherValue(const QMetaProperty& p, const QVariant& current) {
    if (p.isEnumType() && p.metaType().sizeOf() == int(sizeof(int))) {
        const QMetaEnum e = p.enumerator();
        for (int i = 0; i < e.keyCount(); ++i) {
            int value = e.value(i);
            if (value != current.toInt())
                return QVariant(p.metaType(), &value);
        }
    }
    switch (current.metaType().id()) {
    case QMetaType::Bool:
        return !current.toBool();
    case QMetaType::Int:
        return current.toInt() + 1;
    case QMetaType::Double:
        return current.toDouble() + 0.5;
    case QMetaType::QSize:
        return current.toSize() + QSize(1, 1);
    case QMetaType::QPoint:
        return current.toPoint() + QPoint(1, 1);
    default:
        return {};
    }
}

// Every writable property `cls` declares itself signals a change exactly once
// and stays quiet when the same value is written again; bindings in QML and
// Designer rely on both. `values` supplies values the types cannot (names of
// icons and colour sets); an invalid value there leaves the property out.
// Properties without a change signal must be counted by `reported` (how many
// changes of the named property were reported so far some other way).
inline void checkNotifiesOnce(QObject& object, const QMetaObject& cls, const QVariantMap& values = {},
                              const std::function<int(const char*)>& reported = {}) {
    int checked = 0;
    for (int i = cls.propertyOffset(); i < cls.propertyCount(); ++i) {
        const QMetaProperty p = cls.property(i);
        const QString name = QString::fromLatin1(p.name());
        if (!p.isWritable() || (values.contains(name) && !values.value(name).isValid()))
            continue;
        QVERIFY2(p.hasNotifySignal() || reported, p.name());
        const QVariant value = values.contains(name) ? values.value(name) : otherValue(p, p.read(&object));
        QVERIFY2(value.isValid(), qPrintable(name + QStringLiteral(": no value to write")));
        QVERIFY2(p.read(&object) != value, p.name());
        std::unique_ptr<QSignalSpy> spy;
        if (p.hasNotifySignal())
            spy.reset(new QSignalSpy(&object, p.notifySignal()));
        const int before = spy ? 0 : reported(p.name());
        const auto count = [&] {
            return spy ? int(spy->count()) : reported(p.name()) - before;
        };
        QVERIFY(p.write(&object, value));
        QVERIFY2(count() == 1 && p.read(&object) == value, p.name());
        QVERIFY(p.write(&object, value));
        QVERIFY2(count() == 1, p.name());
        ++checked;
    }
    QVERIFY2(checked > 0, cls.className());
}

// A base-layer button that records the property changes it reports to
// subclasses instead of signalling them.
template <typename Button> class ReportingButton : public Button {
public:
    using Button::Button;
    int reported(const char* property) const { return m_reported.count(QByteArray(property)); }

protected:
    void basePropertyChanged(const char* property) override { m_reported << QByteArray(property); }

private:
    QList<QByteArray> m_reported;
};

} // namespace BzTest
