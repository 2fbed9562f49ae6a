#pragma once

#include "brisel_export.h"
#include "bzcolorset.h"
#include "kalabelbase.h"

#include <QSize>

class BzSvgRenderer;

// A label that shows one monochrome SVG icon tinted with a colour set,
// centred in its contents rectangle. The colour set is resolved when the
// icon, the set or the theme changes; painting only picks the state colour.
class BRISEL_EXPORT KaSvgLabelBase : public KaLabelBase {
    Q_OBJECT
    Q_PROPERTY(QString svgIcon READ svgIcon WRITE setSvgIcon NOTIFY svgIconChanged)
    Q_PROPERTY(QString svgIconColorSet READ svgIconColorSet WRITE setSvgIconColorSet NOTIFY svgIconChanged)
    Q_PROPERTY(QSize svgIconSize READ svgIconSize WRITE setSvgIconSize NOTIFY svgIconChanged)

public:
    explicit KaSvgLabelBase(QWidget* parent = nullptr, QAccessible::Role role = QAccessible::Graphic);
    ~KaSvgLabelBase() override;

    // A bare icon name ("check-regular"), ":/…", "qrc:/…" or a file path.
    void setSvgIcon(const QString& nameOrPath);
    QString svgIcon() const { return m_icon; }
    void setSvgIconColorSet(const QString& colorSetName);
    QString svgIconColorSet() const { return m_colorSetName; }
    void setSvgIconSize(const QSize& size);
    QSize svgIconSize() const { return m_size; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void onThemeChanged() override;

Q_SIGNALS:
    void svgIconChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void resolveColor();

    BzSvgRenderer* m_renderer;
    QString m_icon;
    QString m_colorSetName = QStringLiteral("label-primary-text");
    QSize m_size{16, 16};
    BzColorSet m_colorSet;
};
