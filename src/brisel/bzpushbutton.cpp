#include "bzpushbutton.h"

#include "bzbuttonpainter_p.h"
#include "bzscaledfont.h"
#include "bzsheetreader_p.h"
#include "bzstatictextcache_p.h"
#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "bzwidgettheme_p.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QPainter>
#include <QStaticText>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QTextDocument>

namespace {

// Room above and below the content in sizeHint(); configurations set a fixed
// height anyway.
constexpr int kVerticalMargin = 4;

int nonNegative(int value, const char* what) {
    if (value >= 0)
        return value;
    qWarning("BzPushButton: negative %s %d, using 0", what, value);
    return 0;
}

} // namespace

bool BzButtonDecorations::operator==(const BzButtonDecorations& o) const {
    return icon == o.icon && iconTopLeftPadding == o.iconTopLeftPadding &&
           iconBottomRightPadding == o.iconBottomRightPadding && iconAlignment == o.iconAlignment &&
           iconSpacing == o.iconSpacing && anchor == o.anchor && anchorSpacing == o.anchorSpacing &&
           anchorPadding == o.anchorPadding && anchorLeading == o.anchorLeading &&
           anchorFollowsText == o.anchorFollowsText && anchorOffset == o.anchorOffset;
}

BzPushButton::BzPushButton(QWidget* parent)
    : QPushButton(parent)
    , m_theme(new BzWidgetTheme) {
    init();
}

BzPushButton::BzPushButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
    , m_theme(new BzWidgetTheme) {
    init();
}

BzPushButton::~BzPushButton() = default;

void BzPushButton::init() {
    // Hover changes the face colour, so enter and leave must repaint.
    setAttribute(Qt::WA_Hover);
    // Without a record the face is a pill, and a free-form template's frame
    // is painted as it declares.
    m_theme->setDefaultRadius(-1);
    m_theme->setAdoptsTemplateFrame(true);
    applyFont();
    updateFocusRadius();
}

void BzPushButton::setCSS(const QString& css) {
    themeApplied(m_theme->setText(this, css));
}

void BzPushButton::setCSS(const BzCSSData& record) {
    themeApplied(m_theme->setRecord(this, record));
}

QString BzPushButton::getCSS() const {
    return m_theme->css();
}

BzCSSData BzPushButton::getWCSS() const {
    return m_theme->data();
}

void BzPushButton::onThemeChanged() {
    themeApplied(m_theme->refreshAfterThemeRefresh(this));
}

void BzPushButton::themeApplied(bool changed) {
    if (!changed)
        return;
    updatePadding();
    m_focusRectSet = resolveColorSet(m_focusRectSetName);
    themeResolved();
    updateFocusRadius();
    requestUpdate();
    Q_EMIT cssChanged();
}

void BzPushButton::updatePadding() {
    // Paddings come from the widget's own rules (laid out here, without Qt's
    // style-sheet engine) and then from whatever style sheet it carries.
    const QMargins own = m_theme->hasOwnPadding() ? m_theme->ownPadding() : QMargins();
    const QString sheet = styleSheet();
    if (own == m_paddingOwn && sheet == m_paddingSheet)
        return;
    m_paddingOwn = own;
    m_paddingSheet = sheet;
    QMargins padding = own;
    if (!sheet.isEmpty())
        BzSheetReader(sheet).readPadding(metaObject(), objectName(), &padding);
    if (padding != m_sheetPadding) {
        m_sheetPadding = padding;
        updateGeometry();
    }
}

void BzPushButton::themeResolved() {}

void BzPushButton::requestUpdate() {
    if (!bzThemeRefreshInProgress())
        update();
}

BzColorSet BzPushButton::resolveColorSet(const QString& name) const {
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return BzColorSet();
    return BzThemeUtils::getColorSet(trimmed, BzThemeUtils::getThemeTypeOfWidget(this));
}

const BzColorSet& BzPushButton::textColorSet() const {
    return m_theme->text();
}

void BzPushButton::setTextFormat(Qt::TextFormat format) {
    if (m_textFormat == format)
        return;
    m_textFormat = format;
    invalidateTextCache();
    updateGeometry();
    update();
    basePropertyChanged("textFormat");
}

void BzPushButton::setFocusRectColorSet(const QString& name) {
    if (m_focusRectSetName == name)
        return;
    m_focusRectSetName = name;
    m_focusRectSet = resolveColorSet(name);
    update();
    basePropertyChanged("focusRectColorSet");
}

void BzPushButton::setTextHorAlign(BzEnum::HorAlign align) {
    if (align < BzEnum::Left || align > BzEnum::Right) {
        qWarning("BzPushButton: unknown text alignment %d ignored", int(align));
        return;
    }
    if (m_textHorAlign == align)
        return;
    m_textHorAlign = align;
    update();
    basePropertyChanged("textHorAlign");
}

void BzPushButton::setTextLeftPadding(int padding) {
    padding = nonNegative(padding, "text padding");
    if (m_textLeftPadding == padding)
        return;
    m_textLeftPadding = padding;
    updateGeometry();
    update();
    basePropertyChanged("textLeftPadding");
}

void BzPushButton::setTextRightPadding(int padding) {
    padding = nonNegative(padding, "text padding");
    if (m_textRightPadding == padding)
        return;
    m_textRightPadding = padding;
    updateGeometry();
    update();
    basePropertyChanged("textRightPadding");
}

void BzPushButton::setElideMode(Qt::TextElideMode mode) {
    if (m_elideMode == mode)
        return;
    m_elideMode = mode;
    invalidateTextCache();
    updateGeometry();
    update();
    basePropertyChanged("elideMode");
}

void BzPushButton::setElidePadding(int padding) {
    padding = nonNegative(padding, "elide padding");
    if (m_elidePadding == padding)
        return;
    m_elidePadding = padding;
    invalidateTextCache();
    update();
    basePropertyChanged("elidePadding");
}

void BzPushButton::setFontToken(int token, bool scaled) {
    // Every refresh of a button sets its token again: skip making the font.
    if (token == m_fontToken && !scaled && !m_fontScaled)
        return;
    const BzFont font(token, scaled); // clamps with a warning
    const bool changed = font.token() != m_fontToken;
    m_fontToken = font.token();
    m_fontScaled = scaled;
    applyFont();
    if (changed)
        Q_EMIT fontTokenChanged();
}

void BzPushButton::setFontType(FontManagerEnum::FontType type) {
    if (type < FontManagerEnum::None || type > FontManagerEnum::Fixed) {
        qWarning("BzPushButton: unknown font type %d ignored", int(type));
        return;
    }
    if (m_fontType == type)
        return;
    m_fontType = type;
    applyFont();
    basePropertyChanged("fontType");
}

void BzPushButton::applyFont() {
    BzScaledFont* shared = m_fontType == FontManagerEnum::None
                               ? nullptr
                               : BzFontManager::instance()->scaledFont(m_fontType, m_fontToken);
    if (shared != m_scaledFont) {
        if (m_scaledFont)
            disconnect(m_scaledFont, nullptr, this, nullptr);
        m_scaledFont = shared;
        if (shared)
            connect(shared, &BzScaledFont::fontTokenChanged, this, &BzPushButton::applyFont);
    }
    const QFont font = shared ? shared->font() : QFont(BzFont(m_fontToken, m_fontScaled));
    if (QWidget::font() != font)
        setFont(font);
}

void BzPushButton::setAcceleratorType(int type) {
    if (type < NoAccelerator || type > AlwaysUnderlined) {
        qWarning("BzPushButton: unknown accelerator type %d, using %d", type, int(NoAccelerator));
        type = NoAccelerator;
    }
    if (m_acceleratorType == type)
        return;
    m_acceleratorType = type;
    update();
    basePropertyChanged("acceleratorType");
}

void BzPushButton::setInnerMetric(int metric) {
    if (m_innerMetric == metric)
        return;
    m_innerMetric = metric;
    update();
    basePropertyChanged("innerMetric");
}

void BzPushButton::setLayoutMode(int mode) {
    if (m_layoutMode == mode)
        return;
    m_layoutMode = mode;
    updateGeometry();
    update();
    basePropertyChanged("layoutMode");
}

qreal BzPushButton::borderRadius() const {
    const qreal radius = m_theme->radiusFor(height());
    return qMax<qreal>(0, qMin(radius, qMin(width(), height()) / 2.0));
}

void BzPushButton::updateFocusRadius() {
    if (!m_focusRadiusSet)
        m_focusRadius = borderRadius();
}

void BzPushButton::setFocusBorderRadius(qreal radius) {
    // From now on the theme's corner radius no longer replaces it.
    m_focusRadiusSet = true;
    if (m_focusRadius == radius)
        return;
    m_focusRadius = radius;
    basePropertyChanged("focusBorderRadius");
}

void BzPushButton::basePropertyChanged(const char* property) {
    Q_UNUSED(property)
}

bool BzPushButton::isRichText() const {
    switch (m_textFormat) {
    case Qt::RichText:
    case Qt::MarkdownText:
        return true;
    case Qt::AutoText:
        return Qt::mightBeRichText(text());
    default:
        return false;
    }
}

QTextDocument* BzPushButton::document() const {
    if (!m_document) {
        m_document.reset(new QTextDocument);
        m_document->setDocumentMargin(0);
    }
    const QString source = text();
    if (m_documentSource != source || m_documentFormat != int(m_textFormat)) {
        m_documentSource = source;
        m_documentFormat = int(m_textFormat);
        if (m_textFormat == Qt::MarkdownText)
            m_document->setMarkdown(source);
        else
            m_document->setHtml(source);
    }
    QTextOption option = m_document->defaultTextOption();
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(layoutDirection());
    if (option.textDirection() != m_document->defaultTextOption().textDirection() ||
        option.wrapMode() != m_document->defaultTextOption().wrapMode())
        m_document->setDefaultTextOption(option);
    if (m_document->defaultFont() != font())
        m_document->setDefaultFont(font());
    return m_document.get();
}

int BzPushButton::textFlags() const {
    int flags = Qt::TextSingleLine;
    switch (m_acceleratorType) {
    case AlwaysUnderlined:
        flags |= Qt::TextShowMnemonic;
        break;
    case MnemonicAccelerator: {
        QStyleOptionButton option;
        initStyleOption(&option);
        flags |= style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) ? Qt::TextShowMnemonic
                                                                                 : Qt::TextHideMnemonic;
        break;
    }
    default:
        flags |= Qt::TextHideMnemonic;
        break;
    }
    return flags;
}

void BzPushButton::invalidateTextCache() {
    m_textCached = false;
    m_layoutInput.reset();
    m_fitRoom = -1;
}

QSize BzPushButton::textSize() const {
    const QString t = text();
    if (t.isEmpty())
        return QSize(0, fontMetrics().height());
    if (isRichText()) {
        const QTextDocument* doc = document();
        return QSize(qCeil(doc->idealWidth()), qCeil(doc->size().height()));
    }
    if (!m_textCached || m_textSource != t) {
        m_textCached = true;
        m_textSource = t;
        m_fitRoom = -1;
        const QFontMetrics fm = fontMetrics();
        m_textNatural = QSize(fm.size(Qt::TextSingleLine | Qt::TextShowMnemonic, t).width(), fm.height());
    }
    return m_textNatural;
}

void BzPushButton::decorations(Decorations*) const {}

void BzPushButton::fillLayoutInput(BzButtonLayoutInput* in, const QRect& rect) const {
    *static_cast<Decorations*>(in) = Decorations();
    decorations(in);
    in->rect = rect;
    in->padding = m_sheetPadding;
    in->textLeftPadding = m_textLeftPadding;
    in->textRightPadding = m_textRightPadding;
    in->align = m_textHorAlign;
    in->direction = layoutDirection();
    in->text = textSize();
}

BzPushButton::Geometry BzPushButton::contentGeometry() const {
    BzButtonLayoutInput in;
    fillLayoutInput(&in, rect());
    // Painting asks on every frame; lay out again only when something moved.
    const QString full = text();
    if (m_layoutInput && *m_layoutInput == in && m_layoutText == full && m_layoutElide == m_elideMode &&
        m_layoutElidePadding == m_elidePadding)
        return m_geometry;
    Geometry g;
    const bool rich = isRichText();
    const int natural = in.text.width();
    const auto fit = [&](int room) {
        g.shownText = full;
        g.shownWidth = natural;
        if (natural <= room || rich || m_elideMode == Qt::ElideNone)
            return qMin(natural, room);
        // textSize() above refreshed the cache for this text and font.
        if (m_fitRoom != room) {
            const QFontMetrics fm = fontMetrics();
            m_fitText =
                fm.elidedText(full, m_elideMode, qMax(0, room - m_elidePadding), Qt::TextShowMnemonic);
            m_fitWidth = m_fitText.isEmpty()
                             ? 0
                             : fm.size(Qt::TextSingleLine | Qt::TextShowMnemonic, m_fitText).width();
            m_fitRoom = room;
        }
        g.shownText = m_fitText;
        g.shownWidth = m_fitWidth;
        return m_fitWidth;
    };
    const BzButtonLayoutResult r = BzButtonPainter::layout(in, fit);
    g.text = r.text;
    g.icon = r.icon;
    g.anchor = r.anchor;
    if (!m_layoutInput)
        m_layoutInput.reset(new BzButtonLayoutInput);
    *m_layoutInput = in;
    m_layoutText = full;
    m_layoutElide = m_elideMode;
    m_layoutElidePadding = m_elidePadding;
    m_geometry = g;
    return g;
}

QString BzPushButton::elidedText() const {
    return contentGeometry().shownText;
}

QSize BzPushButton::sizeHint() const {
    ensurePolished();
    BzButtonLayoutInput in;
    fillLayoutInput(&in, QRect());
    QSize size = BzButtonPainter::contentSize(in);
    size.setHeight(qMax(size.height(), fontMetrics().height()) + 2 * kVerticalMargin);
    return size;
}

QSize BzPushButton::minimumSizeHint() const {
    const QSize full = sizeHint();
    if (m_elideMode == Qt::ElideNone || isRichText() || text().isEmpty())
        return full;
    // Elided text can shrink to the ellipsis.
    const int natural = textSize().width();
    const int ellipsis = fontMetrics().horizontalAdvance(QChar(0x2026));
    return QSize(full.width() - natural + qMin(natural, ellipsis), full.height());
}

void BzPushButton::setSquareCorners(int corners) {
    m_theme->setSquareCorners(corners);
    update();
}

QStyle::State BzPushButton::paintState() const {
    // A full style option also measures fonts and asks the style for the
    // icon size; per paint only the state bits are needed. An attached menu
    // sinks the button while open, which only the full option knows.
    if (menu()) {
        QStyleOptionButton option;
        initStyleOption(&option);
        return option.state;
    }
    QStyle::State state = bzWidgetState(this);
    if (isDown())
        state |= QStyle::State_Sunken;
    if (isChecked())
        state |= QStyle::State_On;
    if (!isFlat() && !isDown())
        state |= QStyle::State_Raised;
    return state;
}

QColor BzPushButton::stateColor(const BzColorSet& set, QStyle::State state) const {
    if (!set.isValid()) {
        const QPalette::ColorGroup group =
            (state & QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
        return palette().color(group, QPalette::ButtonText);
    }
    if (m_theme->data().isOn(BzCSSData::FollowState))
        return set.colorFor(state);
    return set.colorFor(state & QStyle::State_Enabled);
}

void BzPushButton::paintDecorations(QPainter*, const Geometry&, QStyle::State) {}

void BzPushButton::paintEvent(QPaintEvent*) {
    const QStyle::State state = paintState();
    QPainter painter(this);
    m_theme->paintFrame(&painter, QRectF(rect()), state);

    const Geometry g = contentGeometry();
    const QColor textColor = stateColor(m_theme->text(), state);
    if (!g.text.isEmpty() && !text().isEmpty()) {
        if (isRichText()) {
            QTextDocument* doc = document();
            painter.save();
            painter.setClipRect(g.text);
            const qreal width = doc->idealWidth();
            const qreal left =
                layoutDirection() == Qt::RightToLeft && width > g.text.width()
                    ? g.text.right() + 1 - width
                    : g.text.left() + (g.text.width() - qMin<qreal>(width, g.text.width())) / 2;
            painter.translate(left, g.text.top() + (g.text.height() - doc->size().height()) / 2);
            QAbstractTextDocumentLayout::PaintContext context;
            context.palette = palette();
            context.palette.setColor(QPalette::Text, textColor);
            doc->documentLayout()->draw(&painter, context);
            painter.restore();
        } else {
            // Text that does not fit and is not elided keeps its start visible.
            const bool fits = g.shownWidth <= g.text.width();
            painter.setPen(textColor);
            if (fits && !g.shownText.contains(QLatin1Char('&'))) {
                // Same placement as drawText() centring one line, without
                // shaping the text again on every paint.
                const QStaticText& prepared = BzStaticTextCache::get(g.shownText, font(), layoutDirection());
                const QFontMetricsF fm(font());
                const qreal w = prepared.size().width();
                const qreal h = fm.ascent() + fm.descent();
                painter.drawStaticText(
                    QPointF(g.text.x() + (g.text.width() - w) / 2, g.text.y() + (g.text.height() - h) / 2),
                    prepared);
            } else {
                const Qt::Alignment horizontal =
                    fits ? Qt::AlignHCenter
                         : (layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) |
                               Qt::AlignAbsolute;
                painter.drawText(g.text, int(horizontal | Qt::AlignVCenter) | textFlags(), g.shownText);
            }
        }
    }

    paintDecorations(&painter, g, state);

    if (state & QStyle::State_HasFocus) {
        if (m_focusRectSet.isValid()) {
            if (state & QStyle::State_KeyboardFocusChange) {
                const qreal inset = qMax(1, m_theme->data().borderWidth) + 0.5;
                const QRectF ring = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
                const qreal r = qMax<qreal>(0, borderRadius() - inset);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(QPen(stateColor(m_focusRectSet, state), 1));
                painter.setBrush(Qt::NoBrush);
                painter.drawRoundedRect(ring, r, r);
            }
        } else {
            // The library's focus style draws its ring when asked for this.
            QStyleOptionFocusRect option;
            option.initFrom(this);
            option.rect = rect();
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }
}

void BzPushButton::changeEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::ParentChange:
        // Reparenting may put the button under another "themeType".
        themeApplied(m_theme->refresh(this));
        break;
    case QEvent::StyleChange:
        updatePadding();
        break;
    case QEvent::LayoutDirectionChange:
        update();
        break;
    case QEvent::FontChange:
        invalidateTextCache();
        break;
    default:
        break;
    }
    QPushButton::changeEvent(event);
}

void BzPushButton::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    updateFocusRadius();
}
