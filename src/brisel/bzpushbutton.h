#pragma once

#include "brisel_export.h"
#include "bzcolorset.h"
#include "bzcssdata.h"
#include "bzenum.h"
#include "bzfont.h"
#include "bzfontmanager.h"
#include "bzthemeutils.h"

#include <QPointer>
#include <QPushButton>
#include <QStyle>

#include <memory>

class BzScaledFont;
struct BzButtonLayoutInput;
class BzWidgetTheme;
class QTextDocument;

// The base layer's push button. It paints itself from the colour sets of its
// CSS record: face (background set), border (border set, the record's four
// side switches and width), corner radius (the record's, or half the height
// for -1 and for a button without a record) and text (text set, font token).
// The state colour follows BzColorSet's rule; checked counts as "on".
//
// A record's extra style-sheet text and free-form templates go to Qt's
// style-sheet engine; of those the button itself reads only colour-set
// references and "padding" declarations that address it.
//
// Accelerator types (how '&' in the text is shown; the keyboard shortcut
// itself is QAbstractButton's and always active):
//   0 none       '&' markers are not underlined
//   1 mnemonic   underlined when the style underlines shortcuts
//   2 always     always underlined
// What a button shows beside its text, as subclasses describe it.
struct BRISEL_EXPORT BzButtonDecorations {
    QSize icon; // empty: no main icon
    QPoint iconTopLeftPadding;
    QPoint iconBottomRightPadding;
    BzEnum::Alignment iconAlignment = BzEnum::AlignLeft;
    int iconSpacing = 0;
    QSize anchor; // empty: no anchor icon
    int anchorSpacing = 0;
    int anchorPadding = 0;
    bool anchorLeading = false;
    bool anchorFollowsText = true;
    QPoint anchorOffset;

    bool operator==(const BzButtonDecorations& o) const;
    bool operator!=(const BzButtonDecorations& o) const { return !(*this == o); }
};

class BRISEL_EXPORT BzPushButton : public QPushButton {
    Q_OBJECT
    // Writing "css" always re-resolves it against the current theme, even
    // with the same text: that is how a theme refresh reaches the button.
    Q_PROPERTY(QString css READ getCSS WRITE setCSS NOTIFY cssChanged)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    Q_PROPERTY(QString focusRectColorSet READ focusRectColorSet WRITE setFocusRectColorSet)
    Q_PROPERTY(BzEnum::HorAlign textHorAlign READ textHorAlign WRITE setTextHorAlign)
    Q_PROPERTY(int textLeftPadding READ textLeftPadding WRITE setTextLeftPadding)
    Q_PROPERTY(int textRightPadding READ textRightPadding WRITE setTextRightPadding)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(int elidePadding READ elidePadding WRITE setElidePadding)
    Q_PROPERTY(BzFont::Token fontToken READ fontToken WRITE setFontToken NOTIFY fontTokenChanged)
    Q_PROPERTY(FontManagerEnum::FontType fontType READ fontType WRITE setFontType)
    Q_PROPERTY(int acceleratorType READ getAcceleratorType WRITE setAcceleratorType)
    Q_PROPERTY(int innerMetric READ innerMetric WRITE setInnerMetric)
    Q_PROPERTY(int layoutMode READ layoutMode WRITE setLayoutMode)
    // Read by the focus style. Declared rather than dynamic: a dynamic
    // property would cost every button its own property storage.
    Q_PROPERTY(qreal focusBorderRadius READ focusBorderRadius WRITE setFocusBorderRadius)

public:
    enum AcceleratorType { NoAccelerator = 0, MnemonicAccelerator = 1, AlwaysUnderlined = 2 };
    Q_ENUM(AcceleratorType)

    explicit BzPushButton(QWidget* parent = nullptr);
    explicit BzPushButton(const QString& text, QWidget* parent = nullptr);
    ~BzPushButton() override;

    void setCSS(const QString& css);
    void setCSS(const BzCSSData& record);
    QString getCSS() const;
    BzCSSData getWCSS() const;

    Qt::TextFormat textFormat() const { return m_textFormat; }
    // Plain and rich text; AutoText decides with Qt::mightBeRichText.
    // Rich text is clipped, never elided.
    void setTextFormat(Qt::TextFormat format);

    // Colour set of the button's own focus ring. Empty (the default) leaves
    // the ring to the style's focus-rectangle primitive.
    QString focusRectColorSet() const { return m_focusRectSetName; }
    void setFocusRectColorSet(const QString& name);

    // Left and Right are the leading and trailing sides.
    BzEnum::HorAlign textHorAlign() const { return m_textHorAlign; }
    void setTextHorAlign(BzEnum::HorAlign align);
    // Room between the content and the leading/trailing edge, on top of any
    // style-sheet padding. Negative values count as 0.
    int textLeftPadding() const { return m_textLeftPadding; }
    void setTextLeftPadding(int padding);
    int textRightPadding() const { return m_textRightPadding; }
    void setTextRightPadding(int padding);

    Qt::TextElideMode elideMode() const { return m_elideMode; }
    void setElideMode(Qt::TextElideMode mode);
    // Pixels kept free after elided text.
    int elidePadding() const { return m_elidePadding; }
    void setElidePadding(int padding);
    // The text as painted at the current size (plain text only).
    QString elidedText() const;

    BzFont::Token fontToken() const { return BzFont::Token(m_fontToken); }
    // With fontType None the font is BzFont(token, scaled), fixed at this
    // call; Scaled and Fixed take the manager's shared font, Scaled follows
    // later changes of the text scale.
    void setFontToken(int token, bool scaled = false);
    FontManagerEnum::FontType fontType() const { return m_fontType; }
    void setFontType(FontManagerEnum::FontType type);

    int getAcceleratorType() const { return m_acceleratorType; }
    void setAcceleratorType(int type);

    // Stored for the configurations that drive the button; a change only
    // repaints (layoutMode also asks for new geometry).
    int innerMetric() const { return m_innerMetric; }
    void setInnerMetric(int metric);
    int layoutMode() const { return m_layoutMode; }
    void setLayoutMode(int mode);

    // The corner radius the face is painted with at the current height.
    qreal borderRadius() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The radius of the keyboard focus ring (the focus style reads the
    // property). Until set, the frame's corner radius.
    qreal focusBorderRadius() const { return m_focusRadius; }
    void setFocusBorderRadius(qreal radius);

public Q_SLOTS:
    virtual void onThemeChanged();

Q_SIGNALS:
    // The base buttons declare only these two change signals. Every signal
    // declared here raises the index of a subclass's signals, and Qt sizes
    // the table of a connected sender by that index: a subclass connecting
    // one of its own signals would pay for all of ours in every button.
    // Changes of the other properties reach basePropertyChanged().
    void cssChanged();
    void fontTokenChanged();

protected:
    // What a subclass shows beside the text; the plain button shows nothing.
    using Decorations = BzButtonDecorations;
    struct Geometry {
        QRect text;
        QString shownText;
        // Width of shownText at the button's font.
        int shownWidth = 0;
        QRect icon;
        QRect anchor;
    };

    virtual void decorations(Decorations* out) const;
    Geometry contentGeometry() const;
    // Paints icons on top of face and text.
    virtual void paintDecorations(QPainter* painter, const Geometry& geometry, QStyle::State state);
    // Called whenever colour sets were resolved again; subclasses re-resolve
    // the sets they name themselves.
    virtual void themeResolved();

    // The style state the colours are picked for.
    QStyle::State paintState() const;
    // Corners (DrawUtils::Corner flags) the frame keeps square.
    void setSquareCorners(int corners);
    // The colour of `set` for `state` (the record may turn state tracking
    // off); the palette's button text colour when `set` is not valid.
    QColor stateColor(const BzColorSet& set, QStyle::State state) const;
    const BzColorSet& textColorSet() const;
    // `name` in the widget's theme; an invalid set for an empty name.
    BzColorSet resolveColorSet(const QString& name) const;
    // Repaints unless a theme refresh batch repaints whole windows anyway.
    void requestUpdate();
    // After a property other than "css" and "fontToken" took a new value,
    // with the property's name. A subclass that declares change signals for
    // these properties emits them here.
    virtual void basePropertyChanged(const char* property);

    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void init();
    void themeApplied(bool changed);
    void updatePadding();
    void applyFont();
    void fillLayoutInput(BzButtonLayoutInput* in, const QRect& rect) const;
    void updateFocusRadius();
    bool isRichText() const;
    QSize textSize() const;
    int textFlags() const;
    QTextDocument* document() const;

    std::unique_ptr<BzWidgetTheme> m_theme;
    QString m_focusRectSetName;
    BzColorSet m_focusRectSet;
    QMargins m_sheetPadding;
    QString m_paddingSheet; // the style sheet m_sheetPadding was read from
    QMargins m_paddingOwn;
    Qt::TextFormat m_textFormat = Qt::PlainText;
    BzEnum::HorAlign m_textHorAlign = BzEnum::Center;
    int m_textLeftPadding = 0;
    int m_textRightPadding = 0;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
    int m_elidePadding = 0;
    int m_fontToken = BzFont::Button;
    bool m_fontScaled = false;
    FontManagerEnum::FontType m_fontType = FontManagerEnum::None;
    QPointer<BzScaledFont> m_scaledFont;
    int m_acceleratorType = NoAccelerator;
    int m_innerMetric = 0;
    int m_layoutMode = 0;
    qreal m_focusRadius = 0;
    bool m_focusRadiusSet = false;
    // Layout of the last paint, reused while its input is unchanged.
    mutable std::unique_ptr<BzButtonLayoutInput> m_layoutInput;
    mutable Geometry m_geometry;
    mutable QString m_layoutText;
    mutable Qt::TextElideMode m_layoutElide = Qt::ElideNone;
    mutable int m_layoutElidePadding = 0;
    void invalidateTextCache();
    // Plain-text measurements, redone only when the text, font, elide
    // settings or the room change; painting itself shapes nothing.
    mutable bool m_textCached = false;
    mutable QString m_textSource;
    mutable QSize m_textNatural;
    mutable int m_fitRoom = -1;
    mutable QString m_fitText;
    mutable int m_fitWidth = 0;
    mutable std::unique_ptr<QTextDocument> m_document;
    mutable QString m_documentSource;
    mutable int m_documentFormat = -1;
};
