#pragma once

#include "brisel_export.h"
#include "bzcolorset.h"
#include "bzcssdata.h"
#include "bzthemeutils.h"

#include <QExplicitlySharedDataPointer>
#include <QMargins>
#include <QString>
#include <QStyle>

#include <array>

class QPainter;
class QRectF;
class QWidget;
struct QMetaObject;

// One appearance: a record, or template text and the record read from it.
// Appearances are interned, so every widget with the same look shares one,
// and so do the colour sets it resolves to per theme type.
class BzAppearance : public QSharedData {
public:
    using Ptr = QExplicitlySharedDataPointer<BzAppearance>;

    // The shared appearance of a record / of template text.
    static Ptr fromRecord(const BzCSSData& record);
    static Ptr fromText(const QString& css);

    // The record the widgets paint; buttons adopt a free-form template's
    // border and radius into theirs.
    BzCSSData record;
    BzCSSData buttonRecord;
    bool isRecord = false;

    // Template text: what the widget was given, or the record written out
    // the first time someone asks.
    const QString& text() const;

    struct Resolved {
        quint64 generation = 0;
        BzColorSet background;
        BzColorSet border;
        BzColorSet text;
        QString wholeText; // see resolvedText()
        bool hasWholeText = false;
    };
    // The colour sets of the record in the theme `type` stands for now.
    const Resolved& resolved(BzThemeUtils::AppThemeType type) const;
    // The whole template with its references resolved against `type`.
    const QString& resolvedText(BzThemeUtils::AppThemeType type) const;

    // What Qt's style-sheet engine must still apply for a widget of this
    // class and name (references resolved), and the paddings its own rules
    // give, which the base widgets lay out themselves.
    struct EngineSheet {
        QString sheet;
        QMargins padding;
        bool hasPadding = false;
    };
    const EngineSheet& engineSheet(const QWidget* widget, BzThemeUtils::AppThemeType type) const;

private:
    mutable QString m_text;
    mutable std::array<Resolved, 5> m_resolved;
    mutable const QMetaObject* m_engineClass = nullptr;
    mutable QString m_engineObjectName;
    mutable QString m_engineTemplate;
    mutable EngineSheet m_engine;
    mutable quint64 m_engineGeneration = 0;
    mutable int m_engineType = -1;
};

// The theme state of one base widget: its shared appearance and the theme
// it was last resolved against.
class BzWidgetTheme {
public:
    // Apply a record / template text. Nothing is resolved again when the
    // appearance, the theme data and the widget's theme type are unchanged.
    // Return whether anything changed.
    bool setRecord(QWidget* widget, const BzCSSData& record);
    bool setText(QWidget* widget, const QString& css);
    // Re-resolves when the theme data or the widget's theme type moved
    // since the last call, or always with `force`.
    bool refresh(QWidget* widget, bool force = false);
    // The queued onThemeChanged() after a theme refresh: nothing to do when
    // that refresh already brought the widget up to date.
    bool refreshAfterThemeRefresh(QWidget* widget);

    bool isEmpty() const { return !m_appearance; }
    QString css() const;
    const BzCSSData& data() const;
    const BzColorSet& background() const;
    const BzColorSet& border() const;
    const BzColorSet& text() const;
    // Paddings the widget's own rules gave (see BzAppearance::engineSheet).
    bool hasOwnPadding() const { return m_hasPadding; }
    QMargins ownPadding() const { return m_padding; }

    // Buttons paint the frame a free-form template declares.
    void setAdoptsTemplateFrame(bool on) { m_buttonFrame = on; }
    // A widget without a template: what it paints when it has none.
    void setDefaultRadius(int radius) { m_defaultRadius = radius; }
    // Corners (DrawUtils::Corner flags) painted square whatever the radius.
    void setSquareCorners(int corners) { m_squareCorners = corners; }

    // Paints background and border for a control in `state`.
    void paintFrame(QPainter* painter, const QRectF& rect, QStyle::State state) const;
    // The radius the frame is painted with for a widget of height `height`.
    qreal radiusFor(qreal height) const;

private:
    bool apply(QWidget* widget, BzAppearance::Ptr appearance);

    BzAppearance::Ptr m_appearance;
    const BzAppearance::Resolved* m_resolved = nullptr;
    quint64 m_generation = 0;
    quint64 m_refreshSerial = 0;
    BzThemeUtils::AppThemeType m_type = BzThemeUtils::Global;
    QMargins m_padding;
    int m_defaultRadius = 0;
    int m_squareCorners = 0;
    bool m_buttonFrame = false;
    bool m_hasPadding = false;
    bool m_ownsSheet = false;
};

// True while BzThemeUtils::refreshWidgetThemes() rewrites the widgets' "css";
// base widgets then skip their own update(): every window is repainted whole.
bool bzThemeRefreshInProgress();
// Counts the refreshes; a widget stamped with the current count was already
// brought up to date by it.
quint64 bzThemeRefreshSerial();

// Counters of the costly steps of theming, for tests and benchmarks.
struct BzThemeCounters {
    quint64 colorSetLookups = 0;
    quint64 templateParses = 0;
    quint64 styleSheetsSet = 0;
};
BRISEL_EXPORT BzThemeCounters& bzThemeCounters();

// The state bits a style option would carry for `widget`, without building
// one (an option also copies the palette and measures the font).
QStyle::State bzWidgetState(const QWidget* widget);

// Shared paint path of a frame: background and border in the given colours,
// drawn through a pixmap cache shared by identical frames.
void bzPaintFrame(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& line,
                  int lineWidth, int sides, int squareCorners = 0);
