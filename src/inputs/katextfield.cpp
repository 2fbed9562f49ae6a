#include "katextfield.h"

#include "kacolortokenutils.h"
#include "kafocusstyle.h"
#include "kaiconbutton.h"
#include "kalabel.h"
#include "karvexutils.h"
#include "kasvglabel.h"

#include <bzfont.h>
#include <bzthemeutils.h>
#include <bzwidget.h>

#include <QAccessible>
#include <QBoxLayout>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace {

QString tokenName(Karvox::Token token) {
    return KaColorTokenUtils::tokenToString(token);
}

struct SizeRow {
    int height;
    int width; // 0: free
    int padding;
    int radius;
    int font;
};

// Indexed by KaTextFieldEnum::Size.
constexpr SizeRow kSizes[] = {
    {48, 40, 0, 6, BzFont::Title},    // SingleCharacter
    {32, 0, 8, 4, BzFont::BodySmall}, // Normal
    {40, 0, 12, 6, BzFont::Body},     // Large
};

constexpr int kIconSize = 16;
constexpr int kDefaultWidth = 240;
constexpr int kMessageSpacing = 4;

const char kShowIcon[] = ":/Resources/show-bold.svg";
const char kHideIcon[] = ":/Resources/hide-bold.svg";
const char kSearchIcon[] = ":/Resources/search-bold.svg";
const char kClearIcon[] = ":/Resources/cancel-bold.svg";

bool validStyle(int style) {
    return style >= KaTextFieldEnum::Password && style <= KaTextFieldEnum::Pin;
}

bool validSize(int size) {
    return size >= KaTextFieldEnum::SingleCharacter && size <= KaTextFieldEnum::Large;
}

} // namespace

// The painted frame around the editor. Its focus proxy is the editor, so it
// reports focus while the editor has it, and asks the focus style for the
// ring around itself rather than around the bare editor.
class KaTextFieldFrame : public BzWidget {
public:
    using BzWidget::BzWidget;

protected:
    void paintEvent(QPaintEvent* event) override {
        BzWidget::paintEvent(event);
        if (!hasFocus())
            return;
        QPainter painter(this);
        KaFocusStyle::requestRing(this, &painter);
    }
};

KaTextField::KaTextField(QWidget* parent)
    : QWidget(parent) {
    init(KaTextFieldEnum::Standard, KaTextFieldEnum::Normal);
}

KaTextField::KaTextField(QWidget* parent, KaTextFieldEnum::Style style, KaTextFieldEnum::Size size)
    : QWidget(parent) {
    if (!validStyle(style)) {
        qWarning("KaTextField: unknown style %d, using Standard", int(style));
        style = KaTextFieldEnum::Standard;
    }
    if (!validSize(size)) {
        qWarning("KaTextField: unknown size %d, using Normal", int(size));
        size = KaTextFieldEnum::Normal;
    }
    init(style, size);
}

KaTextField::~KaTextField() {
    // QWidget's destructor takes focus from the editor, which then reports
    // editingFinished and a focus-out to a field that is no longer one.
    m_edit->removeEventFilter(this);
    disconnect(m_edit, nullptr, this, nullptr);
}

void KaTextField::init(KaTextFieldEnum::Style style, KaTextFieldEnum::Size size) {
    setObjectName(QStringLiteral("TextField"));
    m_style = style;
    m_size = size;

    m_frame = new KaTextFieldFrame(this);
    m_frame->setAttribute(Qt::WA_Hover);
    // Text fields show where typing goes however focus arrived.
    m_frame->setProperty("alwaysShowFocusRectWhenFocused", true);
    m_frame->setProperty("focusMargin", 3);

    m_edit = new QLineEdit(m_frame);
    m_edit->setFrame(false);
    m_edit->setAttribute(Qt::WA_MacShowFocusRect, false);
    m_edit->installEventFilter(this);
    m_frame->setFocusProxy(m_edit);
    setFocusProxy(m_edit);

    m_searchIcon = new KaSvgLabel(m_frame);
    m_searchIcon->setSvgIcon(QLatin1String(kSearchIcon));
    m_searchIcon->setSvgIconSize(QSize(kIconSize, kIconSize));
    m_searchIcon->setSvgIconColorSet(tokenName(Karvox::search_placeholder_text));

    m_clearButton = new KaIconButton(m_frame, KaIconButtonEnum::Dismiss, KaButtonEnum::ExtraSmall);
    m_clearButton->setLeftIcon(QLatin1String(kClearIcon));
    m_clearButton->setAccessibleName(tr("Clear text"));
    m_clearButton->setFocusPolicy(Qt::NoFocus);
    connect(m_clearButton, &QAbstractButton::clicked, this, [this] {
        clear();
        m_edit->setFocus(Qt::OtherFocusReason);
    });

    m_eyeButton = new KaIconButton(m_frame, KaIconButtonEnum::Info, KaButtonEnum::ExtraSmall);
    m_eyeButton->setCheckable(true);
    m_eyeButton->setLeftIcon(QLatin1String(kShowIcon));
    m_eyeButton->setLeftIconOn(QLatin1String(kHideIcon));
    // Reachable by Tab: the only way to reveal the password from the keyboard.
    m_eyeButton->setFocusPolicy(Qt::StrongFocus);
    connect(m_eyeButton, &QAbstractButton::toggled, this, &KaTextField::setPasswordVisible);

    auto* row = new QHBoxLayout(m_frame);
    row->setSpacing(4);
    row->addWidget(m_searchIcon);
    row->addWidget(m_edit, 1);
    row->addWidget(m_clearButton);
    row->addWidget(m_eyeButton);

    m_messageRow = new QWidget(this);
    m_message = new KaLabel(m_messageRow);
    m_message->setWordWrap(true);
    m_message->setFontToken(BzFont::BodySmall, false);
    m_counter = new KaLabel(m_messageRow);
    m_counter->setFontToken(BzFont::BodySmall, false);
    m_counter->setTextColorSetName(tokenName(Karvox::label_secondary_text));
    auto* messages = new QHBoxLayout(m_messageRow);
    messages->setContentsMargins(0, 0, 0, 0);
    messages->addWidget(m_message, 1);
    messages->addWidget(m_counter, 0, Qt::AlignTop);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kMessageSpacing);
    column->addWidget(m_frame);
    column->addWidget(m_messageRow);

    connect(m_edit, &QLineEdit::textChanged, this, &KaTextField::onTextChanged);
    connect(m_edit, &QLineEdit::textEdited, this, &KaTextField::textEdited);
    connect(m_edit, &QLineEdit::returnPressed, this, &KaTextField::returnPressed);
    connect(m_edit, &QLineEdit::editingFinished, this, &KaTextField::editingFinished);

    m_clearEnabled = style == KaTextFieldEnum::Search;
    applyStyle();
    applySize();
    applyColors();
    updateMessageRow();
}

void KaTextField::setStyle(KaTextFieldEnum::Style style) {
    if (!validStyle(style)) {
        qWarning("KaTextField::setStyle: unknown style %d ignored", int(style));
        return;
    }
    if (style == m_style)
        return;
    m_style = style;
    applyStyle();
    applyColors();
    Q_EMIT styleChanged(style);
}

void KaTextField::setSize(KaTextFieldEnum::Size size) {
    if (!validSize(size)) {
        qWarning("KaTextField::setSize: unknown size %d ignored", int(size));
        return;
    }
    if (size == m_size)
        return;
    m_size = size;
    applySize();
    updateFrameLook();
    Q_EMIT sizeChanged(size);
}

QString KaTextField::text() const {
    return m_edit->text();
}

void KaTextField::setText(const QString& text) {
    m_edit->setText(text);
}

QString KaTextField::placeholderText() const {
    return m_edit->placeholderText();
}

void KaTextField::setPlaceholderText(const QString& text) {
    if (text == m_edit->placeholderText())
        return;
    m_edit->setPlaceholderText(text);
    updateAccessibleName();
    Q_EMIT placeholderTextChanged();
}

void KaTextField::setErrorText(const QString& text) {
    if (text == m_errorText)
        return;
    const bool hadError = hasError();
    m_errorText = text;
    updateFrameLook();
    updateMessageRow();
    // A new error is news; clearing one is not.
    if (hasError() && isVisible())
        KarvexUtils::announce(m_edit, text);
    if (hadError != hasError())
        applyColors();
    Q_EMIT errorTextChanged();
}

void KaTextField::setCharacterLimit(int limit) {
    limit = qMax(0, limit);
    if (limit == m_limit)
        return;
    m_limit = limit;
    // QLineEdit's own limit truncates typing and pasting alike.
    m_edit->setMaxLength(limit > 0 ? limit : 32767);
    m_limitAnnounced = false;
    updateMessageRow();
    Q_EMIT characterLimitChanged();
}

bool KaTextField::isReadOnly() const {
    return m_edit->isReadOnly();
}

void KaTextField::setReadOnly(bool readOnly) {
    if (readOnly == m_edit->isReadOnly())
        return;
    m_edit->setReadOnly(readOnly);
    updateFrameLook();
    updateButtons();
    Q_EMIT readOnlyChanged();
}

void KaTextField::setClearButtonEnabled(bool enabled) {
    if (enabled == m_clearEnabled)
        return;
    m_clearEnabled = enabled;
    updateButtons();
    Q_EMIT clearButtonEnabledChanged();
}

void KaTextField::setPasswordVisible(bool visible) {
    if (visible == m_passwordVisible)
        return;
    m_passwordVisible = visible;
    applyStyle();
    Q_EMIT passwordVisibleChanged();
}

QSize KaTextField::sizeHint() const {
    // Height from the layout (frame, message row and whatever a subclass
    // adds); width from the size, as QLineEdit's hint says little.
    const SizeRow& row = kSizes[m_size];
    return QSize(row.width > 0 ? row.width : kDefaultWidth, QWidget::sizeHint().height());
}

QSize KaTextField::minimumSizeHint() const {
    const SizeRow& row = kSizes[m_size];
    return QSize(row.width > 0 ? row.width : 2 * row.padding + 4 * kIconSize,
                 QWidget::minimumSizeHint().height());
}

void KaTextField::clear() {
    m_edit->clear();
}

void KaTextField::selectAll() {
    m_edit->selectAll();
}

void KaTextField::onThemeChanged() {
    applyColors();
}

void KaTextField::setSupportingText(const QString& text) {
    if (text == m_supportingText)
        return;
    m_supportingText = text;
    updateMessageRow();
}

void KaTextField::changeEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::EnabledChange:
        applyColors();
        updateButtons();
        break;
    case QEvent::ParentChange:
        // Another "themeType" may be above the field now.
        applyColors();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

bool KaTextField::eventFilter(QObject* watched, QEvent* event) {
    // The frame paints focus for the editor inside it.
    if (watched == m_edit && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        m_frame->update();
    return QWidget::eventFilter(watched, event);
}

void KaTextField::applyStyle() {
    const bool password = m_style == KaTextFieldEnum::Password;
    m_edit->setEchoMode(password && !m_passwordVisible ? QLineEdit::Password : QLineEdit::Normal);
    m_searchIcon->setVisible(m_style == KaTextFieldEnum::Search);
    {
        const QSignalBlocker block(m_eyeButton);
        m_eyeButton->setChecked(m_passwordVisible);
    }
    m_eyeButton->setAccessibleName(m_passwordVisible ? tr("Hide password") : tr("Show password"));
    updateAlignment();
    updateButtons();
    updateFrameLook();
}

void KaTextField::updateAlignment() {
    // One character per box: centred.
    const bool single = m_style == KaTextFieldEnum::Pin || m_size == KaTextFieldEnum::SingleCharacter;
    m_edit->setAlignment(single ? Qt::AlignCenter : Qt::AlignLeading | Qt::AlignVCenter);
}

void KaTextField::applySize() {
    const SizeRow& row = kSizes[m_size];
    m_frame->setFixedHeight(row.height);
    if (row.width > 0)
        setFixedWidth(row.width);
    else {
        setMinimumWidth(0);
        setMaximumWidth(QWIDGETSIZE_MAX);
    }
    m_frame->layout()->setContentsMargins(row.padding, 0, row.padding > 0 ? row.padding / 2 : 0, 0);
    const BzFont font(row.font);
    m_edit->setFont(font);
    setSizePolicy(row.width > 0 ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
    updateAlignment();
    updateButtons();
    updateGeometry();
}

void KaTextField::applyColors() {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(this);
    const bool search = m_style == KaTextFieldEnum::Search;
    const BzColorSet text =
        BzThemeUtils::getColorSet(tokenName(search ? Karvox::search_text : Karvox::textinput_text), type);
    const BzColorSet placeholder = BzThemeUtils::getColorSet(
        tokenName(search ? Karvox::search_placeholder_text : Karvox::textinput_placeholder_text), type);
    QPalette palette = m_edit->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Text, text.normal());
        palette.setColor(group, QPalette::PlaceholderText, placeholder.normal());
    }
    palette.setColor(QPalette::Disabled, QPalette::Text, text.disabled());
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, placeholder.disabled());
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Disabled, QPalette::Base, Qt::transparent);
    m_edit->setPalette(palette);
    m_searchIcon->setSvgIconColorSet(
        tokenName(search ? Karvox::search_placeholder_text : Karvox::textinput_placeholder_text));
    m_message->setTextColorSetName(
        tokenName(hasError() ? Karvox::textinput_error_text : Karvox::label_secondary_text));
}

void KaTextField::updateFrameLook() {
    const bool search = m_style == KaTextFieldEnum::Search;
    BzCSSData record;
    if (hasError()) {
        record.backgroundColorSet = tokenName(Karvox::textinput_error_background);
        record.borderColorSet = tokenName(Karvox::textinput_error_border);
    } else {
        record.backgroundColorSet =
            tokenName(search ? Karvox::search_background : Karvox::textinput_background);
        record.borderColorSet = tokenName(search ? Karvox::search_border : Karvox::textinput_border);
    }
    record.setBorders(true);
    // Read-only fields show their text on the page's own background and do
    // not react to the pointer: nothing there invites typing.
    if (m_edit->isReadOnly()) {
        record.setSwitch(BzCSSData::PaintBackground, 0);
        record.setSwitch(BzCSSData::FollowState, 0);
    }
    const int radius = search ? kSizes[m_size].height / 2 : kSizes[m_size].radius;
    record.borderRadius = radius;
    m_frame->setCSS(record);
    m_frame->setProperty("focusBorderRadius", double(radius));
}

void KaTextField::updateButtons() {
    const bool editable = isEnabled() && !m_edit->isReadOnly();
    const bool roomy = m_size != KaTextFieldEnum::SingleCharacter;
    m_clearButton->setVisible(roomy && m_clearEnabled && editable && !m_edit->text().isEmpty());
    m_eyeButton->setVisible(roomy && m_style == KaTextFieldEnum::Password);
}

void KaTextField::updateMessageRow() {
    const QString message = hasError() ? m_errorText : m_supportingText;
    m_message->setText(message);
    m_edit->setAccessibleDescription(message);
    m_message->setVisible(!message.isEmpty());
    if (m_limit > 0) {
        const int count = m_edit->text().size();
        m_counter->setText(QStringLiteral("%1/%2").arg(count).arg(m_limit));
        m_counter->setAccessibleName(tr("%1 of %2 characters").arg(count).arg(m_limit));
    }
    m_counter->setVisible(m_limit > 0);
    const bool shown = !message.isEmpty() || m_limit > 0;
    if (shown != !m_messageRow->isHidden()) {
        m_messageRow->setVisible(shown);
        updateGeometry();
    }
}

QString KaTextField::defaultAccessibleName() const {
    return m_edit->placeholderText();
}

void KaTextField::updateAccessibleName() {
    // Ours until the host gives the editor a name of its own.
    const QString current = m_edit->accessibleName();
    if (!current.isEmpty() && current != m_defaultAccessibleName)
        return;
    m_defaultAccessibleName = defaultAccessibleName();
    m_edit->setAccessibleName(m_defaultAccessibleName);
}

void KaTextField::onTextChanged(const QString& text) {
    updateButtons();
    if (m_limit > 0) {
        updateMessageRow();
        const bool full = text.size() >= m_limit;
        if (full && !m_limitAnnounced && isVisible())
            KarvexUtils::announce(m_edit, tr("Character limit of %1 reached").arg(m_limit));
        m_limitAnnounced = full;
    }
    Q_EMIT textChanged(text);
}
