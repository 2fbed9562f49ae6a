#include "bzwidgettheme_p.h"

#include "bzsheetreader_p.h"
#include "bzthememanager.h"
#include "drawutils.h"

#include <QCache>
#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

// Distinct looks of a whole application number in the dozens; a host that
// makes templates on the fly must not grow the heap without bound. When a
// table is full it starts again: widgets keep their own references.
constexpr qsizetype kMaxInterned = 512;

size_t qHash(const BzCSSData& d, size_t seed = 0) {
    return qHashMulti(seed, d.backgroundColorSet, d.borderColorSet, d.textColorSet, d.switches[0],
                      d.switches[1], d.switches[2], d.switches[3], d.switches[4], d.switches[5],
                      d.borderRadius, d.borderWidth, d.extraCSS);
}

struct RecordKey {
    BzCSSData data;
    bool operator==(const RecordKey& o) const { return data == o.data; }
};
size_t qHash(const RecordKey& k, size_t seed = 0) {
    return qHash(k.data, seed);
}

template <typename Key>
BzAppearance::Ptr intern(QHash<Key, BzAppearance::Ptr>& table, const Key& key,
                         const std::function<BzAppearance*()>& make) {
    auto it = table.constFind(key);
    if (it != table.cend())
        return *it;
    if (table.size() >= kMaxInterned)
        table.clear();
    BzAppearance::Ptr made(make());
    table.insert(key, made);
    return made;
}

QHash<RecordKey, BzAppearance::Ptr>& recordTable() {
    static QHash<RecordKey, BzAppearance::Ptr> table;
    return table;
}

QHash<QString, BzAppearance::Ptr>& textTable() {
    static QHash<QString, BzAppearance::Ptr> table;
    return table;
}

BzColorSet setFor(const QString& name, BzThemeUtils::AppThemeType type) {
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return BzColorSet();
    return BzThemeUtils::getColorSet(trimmed, type);
}

int typeIndex(BzThemeUtils::AppThemeType type) {
    return qBound(0, int(type), 4);
}

} // namespace

BzThemeCounters& bzThemeCounters() {
    static BzThemeCounters counters;
    return counters;
}

BzAppearance::Ptr BzAppearance::fromRecord(const BzCSSData& record) {
    BzCSSData key = record;
    key.styleSheet.clear();
    return intern<RecordKey>(recordTable(), RecordKey{key}, [&key] {
        auto* a = new BzAppearance;
        a->record = key;
        a->buttonRecord = key;
        a->isRecord = true;
        return a;
    });
}

BzAppearance::Ptr BzAppearance::fromText(const QString& css) {
    // Text written from a record reads back as that record's appearance.
    return intern<QString>(textTable(), css, [&css] {
        const BzSheetReader reader(css);
        auto* a = new BzAppearance;
        a->m_text = css;
        a->record = reader.record();
        a->buttonRecord = a->record;
        a->isRecord = reader.hasRecordHeader();
        if (!a->isRecord) {
            // A free-form template on a button: the painted frame follows
            // what the template declares; without a radius it is a pill.
            BzCSSData& b = a->buttonRecord;
            b.borderRadius = -1;
            reader.readFrame(&b.borderRadius, &b.borderWidth);
            if (!b.borderColorSet.isEmpty())
                b.setBorders(true);
        }
        return a;
    });
}

const QString& BzAppearance::text() const {
    if (m_text.isEmpty() && isRecord)
        m_text = BzThemeUtils::convertToWCSS(record);
    return m_text;
}

const BzAppearance::Resolved& BzAppearance::resolved(BzThemeUtils::AppThemeType type) const {
    const quint64 generation = BzThemeManager::instance()->generation();
    Resolved& r = m_resolved[typeIndex(type)];
    if (r.generation != generation) {
        r.generation = generation;
        r.hasWholeText = false;
        r.wholeText.clear();
        r.background = setFor(record.backgroundColorSet, type);
        r.border = setFor(record.borderColorSet, type);
        r.text = setFor(record.textColorSet, type);
    }
    return r;
}

const QString& BzAppearance::resolvedText(BzThemeUtils::AppThemeType type) const {
    Resolved& r = const_cast<Resolved&>(resolved(type));
    if (!r.hasWholeText) {
        r.hasWholeText = true;
        r.wholeText = BzThemeUtils::resolveTemplate(text(), type);
    }
    return r.wholeText;
}

const BzAppearance::EngineSheet& BzAppearance::engineSheet(const QWidget* widget,
                                                           BzThemeUtils::AppThemeType type) const {
    const QMetaObject* mo = widget->metaObject();
    const bool sameWidgetKind = m_engineClass == mo && m_engineObjectName == widget->objectName();
    if (!sameWidgetKind) {
        m_engineClass = mo;
        m_engineObjectName = widget->objectName();
        m_engine = EngineSheet();
        m_engineType = -1;
        // A record is painted by the widget: only its extra rules matter, and
        // of those the widget lays out its own paddings. Free-form templates
        // go to the engine whole.
        const QString& source = isRecord ? record.extraCSS : m_text;
        if (!source.trimmed().isEmpty()) {
            const BzSheetReader reader(source);
            m_engine.hasPadding = reader.readPadding(mo, m_engineObjectName, &m_engine.padding);
            if (!isRecord)
                m_engineTemplate = source;
            else if (std::any_of(reader.rules().cbegin(), reader.rules().cend(),
                                 [&](const BzSheetReader::Rule& rule) {
                                     return BzSheetReader::isOwnPaddingRule(rule, mo, m_engineObjectName);
                                 }))
                m_engineTemplate = reader.engineText(mo, m_engineObjectName);
            else
                m_engineTemplate = source;
        } else {
            m_engineTemplate.clear();
        }
    }
    const quint64 generation = BzThemeManager::instance()->generation();
    if (m_engineType != int(type) || m_engineGeneration != generation) {
        m_engineType = int(type);
        m_engineGeneration = generation;
        m_engine.sheet = m_engineTemplate.trimmed().isEmpty()
                             ? QString()
                             : BzThemeUtils::resolveTemplate(m_engineTemplate, type);
    }
    return m_engine;
}

bool BzWidgetTheme::setRecord(QWidget* widget, const BzCSSData& record) {
    if (m_appearance && m_appearance->isRecord && m_appearance->record == record)
        return refresh(widget);
    return apply(widget, BzAppearance::fromRecord(record));
}

bool BzWidgetTheme::setText(QWidget* widget, const QString& css) {
    if (css.isEmpty()) {
        if (!m_appearance)
            return false;
        return apply(widget, BzAppearance::Ptr());
    }
    if (m_appearance && m_appearance->text() == css)
        return refresh(widget);
    return apply(widget, BzAppearance::fromText(css));
}

bool BzWidgetTheme::apply(QWidget* widget, BzAppearance::Ptr appearance) {
    m_appearance = appearance;
    m_resolved = nullptr;
    return refresh(widget, true);
}

bool BzWidgetTheme::refreshAfterThemeRefresh(QWidget* widget) {
    // The type is read once per refresh: the "css" rewrite did it already.
    if (m_resolved && m_refreshSerial == bzThemeRefreshSerial() &&
        m_generation == BzThemeManager::instance()->generation())
        return false;
    return refresh(widget);
}

bool BzWidgetTheme::refresh(QWidget* widget, bool force) {
    const quint64 generation = BzThemeManager::instance()->generation();
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(widget);
    const bool moved = !m_resolved || generation != m_generation || type != m_type;
    m_refreshSerial = bzThemeRefreshInProgress() ? bzThemeRefreshSerial() : 0;
    if (!force && !moved)
        return false;
    m_generation = generation;
    m_type = type;
    QString sheet;
    m_padding = QMargins();
    m_hasPadding = false;
    if (m_appearance) {
        m_resolved = &m_appearance->resolved(type);
        const BzAppearance::EngineSheet& engine = m_appearance->engineSheet(widget, type);
        sheet = engine.sheet;
        m_padding = engine.padding;
        m_hasPadding = engine.hasPadding;
    } else {
        static const BzAppearance::Resolved none;
        m_resolved = &none;
    }
    // Only text the widget cannot paint itself goes to Qt's engine; a style
    // sheet the host set stays while there is nothing of ours to set.
    if ((!sheet.isEmpty() || m_ownsSheet) && widget->styleSheet() != sheet) {
        ++bzThemeCounters().styleSheetsSet;
        widget->setStyleSheet(sheet);
    }
    m_ownsSheet = !sheet.isEmpty();
    return true;
}

QString BzWidgetTheme::css() const {
    return m_appearance ? m_appearance->text() : QString();
}

const BzCSSData& BzWidgetTheme::data() const {
    static const BzCSSData none;
    if (!m_appearance)
        return none;
    return m_buttonFrame ? m_appearance->buttonRecord : m_appearance->record;
}

const BzColorSet& BzWidgetTheme::background() const {
    static const BzColorSet none;
    return m_resolved ? m_resolved->background : none;
}

const BzColorSet& BzWidgetTheme::border() const {
    static const BzColorSet none;
    return m_resolved ? m_resolved->border : none;
}

const BzColorSet& BzWidgetTheme::text() const {
    static const BzColorSet none;
    return m_resolved ? m_resolved->text : none;
}

qreal BzWidgetTheme::radiusFor(qreal height) const {
    const int radius = m_appearance ? data().borderRadius : m_defaultRadius;
    return radius < 0 ? height / 2.0 : qreal(radius);
}

namespace {

struct FrameKey {
    QSize size; // device pixels
    qreal dpr;
    qreal radius;
    QRgb fill;
    QRgb line;
    int lineWidth;
    int sides;
    int corners;
    bool operator==(const FrameKey& o) const {
        return size == o.size && dpr == o.dpr && radius == o.radius && fill == o.fill && line == o.line &&
               lineWidth == o.lineWidth && sides == o.sides && corners == o.corners;
    }
};

size_t qHash(const FrameKey& k, size_t seed = 0) {
    return qHashMulti(seed, k.size.width(), k.size.height(), k.dpr, k.radius, k.fill, k.line, k.lineWidth,
                      k.sides, k.corners);
}

QCache<FrameKey, QPixmap>& frameCache() {
    // Cost in KiB. Rows of identical buttons share a handful of entries.
    static QCache<FrameKey, QPixmap> cache(8 * 1024);
    static const bool cleanupRegistered = [] {
        // Pixmaps must not outlive the GUI application.
        qAddPostRoutine([] { frameCache().clear(); });
        return true;
    }();
    Q_UNUSED(cleanupRegistered);
    return cache;
}

enum Side { Top = 1, Right = 2, Bottom = 4, Left = 8, AllSides = 15 };

void drawFrame(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& line,
               int lineWidth, int sides, int squareCorners) {
    // A side without a border is pushed outside the rectangle, where the
    // clip hides its line: adjoining frames then meet without a double edge.
    QRectF frame = rect;
    if (line.isValid() && sides != AllSides) {
        const qreal w = lineWidth;
        frame.adjust((sides & Left) ? 0 : -w, (sides & Top) ? 0 : -w, (sides & Right) ? 0 : w,
                     (sides & Bottom) ? 0 : w);
        painter->setClipRect(rect, Qt::IntersectClip);
    }
    DrawUtils::drawRoundedRect(painter, frame, radius, fill, line, lineWidth,
                               DrawUtils::Corners(squareCorners));
}

bool isWhole(qreal v) {
    return qFuzzyIsNull(v - std::round(v));
}

} // namespace

void bzPaintFrame(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fillColor,
                  const QColor& lineColor, int lineWidth, int sides, int squareCorners) {
    const QColor fill = fillColor.isValid() && fillColor.alpha() > 0 ? fillColor : QColor();
    const QColor line =
        lineColor.isValid() && lineColor.alpha() > 0 && lineWidth > 0 && sides ? lineColor : QColor();
    if (!fill.isValid() && !line.isValid())
        return;
    if (!line.isValid())
        sides = 0;

    // Rasterising an antialiased path per widget per paint is what a theme
    // switch spends most on; identical frames on the device pixel grid share
    // one pixmap instead.
    const QTransform device = painter->deviceTransform();
    const qreal dpr = device.m11();
    const QPointF origin = device.map(rect.topLeft());
    const QSizeF deviceSize = rect.size() * dpr;
    const bool cacheable =
        device.type() <= QTransform::TxScale && dpr > 0 && device.m22() == dpr && painter->opacity() == 1.0 &&
        painter->compositionMode() == QPainter::CompositionMode_SourceOver && isWhole(origin.x()) &&
        isWhole(origin.y()) && isWhole(deviceSize.width()) && isWhole(deviceSize.height()) &&
        deviceSize.width() * deviceSize.height() <= 512 * 512;
    const auto direct = [&] {
        painter->save();
        drawFrame(painter, rect, radius, fill, line, lineWidth, sides, squareCorners);
        painter->restore();
    };
    if (!cacheable) {
        direct();
        return;
    }
    const FrameKey key{QSize(qRound(deviceSize.width()), qRound(deviceSize.height())),
                       dpr,
                       radius,
                       fill.isValid() ? fill.rgba() : 0u,
                       line.isValid() ? line.rgba() : 0u,
                       line.isValid() ? lineWidth : 0,
                       sides,
                       squareCorners};
    QCache<FrameKey, QPixmap>& cache = frameCache();
    const QPixmap* pm = cache.object(key);
    if (!pm) {
        QImage image(key.size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        image.setDevicePixelRatio(dpr);
        {
            QPainter p(&image);
            drawFrame(&p, QRectF(QPointF(0, 0), rect.size()), radius, fill, line, lineWidth, sides,
                      squareCorners);
        }
        auto* made = new QPixmap(QPixmap::fromImage(std::move(image)));
        made->setDevicePixelRatio(dpr);
        const qsizetype cost = qMax<qsizetype>(1, qsizetype(key.size.width()) * key.size.height() * 4 / 1024);
        if (!cache.insert(key, made, cost)) {
            // Too big for the cache (insert deleted it): draw directly.
            direct();
            return;
        }
        pm = cache.object(key);
    }
    painter->drawPixmap(rect.topLeft(), *pm);
}

QStyle::State bzWidgetState(const QWidget* widget) {
    const QWidget* window = widget->window();
    QStyle::State state = QStyle::State_None;
    if (widget->isEnabled())
        state |= QStyle::State_Enabled;
    if (widget->hasFocus())
        state |= QStyle::State_HasFocus;
    if (window->testAttribute(Qt::WA_KeyboardFocusChange))
        state |= QStyle::State_KeyboardFocusChange;
    if (widget->underMouse())
        state |= QStyle::State_MouseOver;
    if (window->isActiveWindow())
        state |= QStyle::State_Active;
    if (widget->isWindow())
        state |= QStyle::State_Window;
    return state;
}

void BzWidgetTheme::paintFrame(QPainter* painter, const QRectF& rect, QStyle::State state) const {
    const BzCSSData& d = data();
    const bool followState = d.isOn(BzCSSData::FollowState);
    const auto pick = [&](const BzColorSet& set) {
        if (!set.isValid())
            return QColor();
        return followState ? set.colorFor(state) : set.colorFor(state & QStyle::State_Enabled);
    };
    const QColor fill = d.isOn(BzCSSData::PaintBackground) ? pick(background()) : QColor();
    const int sides =
        (d.isOn(BzCSSData::BorderTop) ? Top : 0) | (d.isOn(BzCSSData::BorderRight) ? Right : 0) |
        (d.isOn(BzCSSData::BorderBottom) ? Bottom : 0) | (d.isOn(BzCSSData::BorderLeft) ? Left : 0);
    const QColor line = sides ? pick(border()) : QColor();
    bzPaintFrame(painter, rect, radiusFor(rect.height()), fill, line, d.borderWidth, sides, m_squareCorners);
}
