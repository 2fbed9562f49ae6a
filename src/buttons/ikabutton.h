#pragma once

#include "bzsvganchorbutton.h"
#include "ikabuttonconfig.h"
#include "karvex_export.h"

#include <QMetaEnum>
#include <QPointer>
#include <QString>

// Base of every configuration-driven button. It owns no look of its own: a
// configuration object fills an appearance record, the concrete button turns
// it into a CSS record plus a few base-button setters, and the base layer
// paints. Anything that may change the look emits refreshConfig(); each
// concrete button connects that to its own refresh(), which fills a fresh
// record and applies it whole. No record is cached.
//
// The icon paths live in the configuration (it decides which path the
// checked state shows); the setters here pass them through and mirror the
// configuration's result onto the base button.
class KARVEX_EXPORT IKaButton : public BzSvgAnchorButton {
    Q_OBJECT
    Q_PROPERTY(QString anchorSvgOn READ anchorSvgOn WRITE setAnchorSvgOn NOTIFY anchorSvgOnChanged)
    Q_PROPERTY(QString anchorSvgOff READ anchorSvgOff WRITE setAnchorSvgOff NOTIFY anchorSvgOffChanged)
    Q_PROPERTY(QSize anchorIconSize READ anchorIconSize WRITE setAnchorIconSize NOTIFY anchorIconSizeChanged)
    Q_PROPERTY(QString anchorSvgColorSet READ anchorSvgColorSet WRITE setAnchorSvgColorSet NOTIFY
                   anchorSvgColorSetChanged)
    Q_PROPERTY(int anchorPadding READ anchorPadding WRITE setAnchorPadding NOTIFY anchorPaddingChanged)
    Q_PROPERTY(
        QPoint anchorSvgOffset READ anchorSvgOffset WRITE setAnchorSvgOffset NOTIFY anchorSvgOffsetChanged)
    Q_PROPERTY(bool isLeftAnchor READ isLeftAnchor WRITE setLeftAnchor NOTIFY isLeftAnchorChanged)
    Q_PROPERTY(bool alignAnchorIconToText READ alignAnchorIconToText WRITE setAlignAnchorIconToText NOTIFY
                   alignAnchorIconToTextChanged)
    Q_PROPERTY(QString svgIcon READ svgIcon WRITE setSvgIcon NOTIFY svgIconChanged)
    Q_PROPERTY(
        QString svgIconChecked READ svgIconChecked WRITE setSvgIconChecked NOTIFY svgIconCheckedChanged)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat NOTIFY textFormatChanged)
    Q_PROPERTY(QString focusRectColorSet READ focusRectColorSet WRITE setFocusRectColorSet NOTIFY
                   focusRectColorSetChanged)
    Q_PROPERTY(
        QString svgIconColorSet READ svgIconColorSet WRITE setSvgIconColorSet NOTIFY svgIconColorSetChanged)
    Q_PROPERTY(QSize svgIconSize READ svgIconSize WRITE setSvgIconSize NOTIFY svgIconSizeChanged)
    Q_PROPERTY(QString css READ getCSS WRITE setCSS NOTIFY cssChanged)
    // Plain QWidget properties: Qt gives them no change signal.
    Q_PROPERTY(QSizePolicy sizePolicy READ sizePolicy WRITE setSizePolicy)
    Q_PROPERTY(Qt::FocusPolicy focusPolicy READ focusPolicy WRITE setFocusPolicy)
    Q_PROPERTY(BzEnum::Alignment svgIconAlignment READ svgIconAlignment WRITE setSvgIconAlignment NOTIFY
                   svgIconAlignmentChanged)
    Q_PROPERTY(
        BzEnum::HorAlign textHorAlign READ textHorAlign WRITE setTextHorAlign NOTIFY textHorAlignChanged)
    Q_PROPERTY(
        int textLeftPadding READ textLeftPadding WRITE setTextLeftPadding NOTIFY textLeftPaddingChanged)
    Q_PROPERTY(
        int textRightPadding READ textRightPadding WRITE setTextRightPadding NOTIFY textRightPaddingChanged)
    Q_PROPERTY(QPoint svgIconTopLeftPadding READ svgIconTopLeftPadding WRITE setSvgIconTopLeftPadding NOTIFY
                   svgIconTopLeftPaddingChanged)
    Q_PROPERTY(QPoint svgIconBottomRightPadding READ svgIconBottomRightPadding WRITE
                   setSvgIconBottomRightPadding NOTIFY svgIconBottomRightPaddingChanged)
    Q_PROPERTY(QString innerSvgIcon READ innerSvgIcon WRITE setInnerSvgIcon NOTIFY innerSvgIconChanged)
    Q_PROPERTY(QString innerSvgIconColorSet READ innerSvgIconColorSet WRITE setInnerSvgIconColorSet NOTIFY
                   innerSvgIconColorSetChanged)
    Q_PROPERTY(
        QSize innerSvgIconSize READ innerSvgIconSize WRITE setInnerSvgIconSize NOTIFY innerSvgIconSizeChanged)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode NOTIFY elideModeChanged)
    Q_PROPERTY(int elidePadding READ elidePadding WRITE setElidePadding NOTIFY elidePaddingChanged)
    Q_PROPERTY(BzFont::Token fontToken READ fontToken WRITE setFontToken NOTIFY fontTokenChanged)
    Q_PROPERTY(FontManagerEnum::FontType fontType READ fontType WRITE setFontType NOTIFY fontTypeChanged)
    Q_PROPERTY(int innerMetric READ innerMetric WRITE setInnerMetric NOTIFY innerMetricChanged)
    Q_PROPERTY(int layoutMode READ layoutMode WRITE setLayoutMode NOTIFY layoutModeChanged)

public:
    using Config = IKaButtonConfig::Config;

    ~IKaButton() override;

    // The configuration the button was built with; null once it is gone.
    IKaButtonConfig* buttonConfig() const { return m_config; }

    // Each setter does nothing for the current path. Otherwise the path goes
    // to the configuration, which tells its own flags whether an icon is
    // there (a pill's paddings depend on that), and the base button shows
    // what the configuration resolved. setRightIcon() sets the anchor icon
    // of both states, setRightIconOn() only that of the checked state.
    void setLeftIcon(const QString& path);
    void setLeftIconOn(const QString& path);
    void setRightIcon(const QString& path);
    void setRightIconOn(const QString& path);
    QString leftIcon() const;
    QString leftIconOn() const;
    QString rightIcon() const;
    QString rightIconOn() const;

    // QAbstractButton::setText; the look does not depend on the text.
    void setText(const QString& text);

    // Routes the accelerator type through the configuration, so the next
    // refresh applies it like every other field. Configurations without a
    // custom value (icon and overlay buttons) keep type 0.
    void applyAcceleratorType(const AcceleratorType& type);
    // Remembers a QToolTip rule in the application palette's tool-tip
    // colours; concrete buttons append it to their own style sheet.
    void applyTooltipStyle();
    QString tooltipStyleSheet() const { return m_tooltipStyleSheet; }

Q_SIGNALS:
    // Fill the configuration's record again and apply it.
    void refreshConfig();
    // True after every show, false after every hide.
    void onVisibilityChanged(bool isVisible);
    void leftIconChanged();
    void leftIconOnChanged();
    void rightIconChanged();
    void rightIconOnChanged();
    // Change signals of the base button's properties declared above. They
    // come after refreshConfig() so that its connection stays cheap.
    void anchorSvgOnChanged();
    void anchorSvgOffChanged();
    void anchorIconSizeChanged();
    void anchorSvgColorSetChanged();
    void anchorPaddingChanged();
    void anchorSvgOffsetChanged();
    void isLeftAnchorChanged();
    void alignAnchorIconToTextChanged();
    void svgIconChanged();
    void svgIconCheckedChanged();
    void textFormatChanged();
    void focusRectColorSetChanged();
    void svgIconColorSetChanged();
    void svgIconSizeChanged();
    void svgIconAlignmentChanged();
    void textHorAlignChanged();
    void textLeftPaddingChanged();
    void textRightPaddingChanged();
    void svgIconTopLeftPaddingChanged();
    void svgIconBottomRightPaddingChanged();
    void innerSvgIconChanged();
    void innerSvgIconColorSetChanged();
    void innerSvgIconSizeChanged();
    void elideModeChanged();
    void elidePaddingChanged();
    void fontTypeChanged();
    void innerMetricChanged();
    void layoutModeChanged();

public Q_SLOTS:
    // Re-resolves the base button's colour sets, then re-fills the record,
    // which re-reads the high-contrast switch.
    void onThemeChanged() override;

protected:
    IKaButton(QWidget* parent, IKaButtonConfig* config);

    // Applies the geometry and font part of a record.
    void refresh(const Config& config);
    // Hands the colour part to the base button as a CSS record, with
    // `styleSheet` and the tool-tip rule as its extra style-sheet text and
    // `radius` for the corners (-1: a pill). An unchanged record costs
    // nothing: a theme switch has re-resolved it already through "css".
    void applyColors(const Config::Colors& colors, const QString& styleSheet, int radius = -1);
    // For buttons without text: the accessible name to use unless the host
    // set one of its own with setAccessibleName().
    void setDefaultAccessibleName(const QString& name);

    // Configuration signals sent while a button setter writes the
    // configuration are dropped: the setter emits refreshConfig() itself,
    // after its own change signal.
    class ConfigWrite {
    public:
        explicit ConfigWrite(IKaButton* button)
            : m_button(button) {
            ++m_button->m_configWrites;
        }
        ~ConfigWrite() { --m_button->m_configWrites; }
        ConfigWrite(const ConfigWrite&) = delete;
        ConfigWrite& operator=(const ConfigWrite&) = delete;

    private:
        IKaButton* m_button;
    };

    // Writes one configuration field for a button setter. Does nothing
    // without a configuration or when the field already holds `value`;
    // returns whether it changed, so that the setter then emits its own
    // change signal and refreshConfig(). Enumeration values that are not
    // keys (a form naming a key the enumeration lacks) are refused.
    template <typename Config, typename Get, typename Set, typename Value>
    bool writeConfig(Config* config, Get get, Set set, const Value& value) {
        if constexpr (QtPrivate::IsQEnumHelper<Value>::Value) {
            if (!QMetaEnum::fromType<Value>().valueToKey(int(value))) {
                qWarning("%s: %d is not a key of %s, ignored", metaObject()->className(), int(value),
                         QMetaEnum::fromType<Value>().name());
                return false;
            }
        }
        if (!config || (config->*get)() == value)
            return false;
        const ConfigWrite write(this);
        (config->*set)(value);
        return true;
    }

    // The common start of a variant's refresh(): fills `out` from `config`
    // and applies its colours and record. False without a configuration.
    template <typename VariantConfig, typename Geometry>
    bool applyGeometry(const VariantConfig* config, Geometry& out) {
        if (!config)
            return false;
        config->fillGeometry(out);
        applyColors(out.colors, QString());
        refresh(out);
        return true;
    }
    // Fixes the width, or frees it again for 0.
    void setFixedOrFreeWidth(int width) {
        if (width > 0) {
            setFixedWidth(width);
            return;
        }
        setMinimumWidth(0);
        setMaximumWidth(QWIDGETSIZE_MAX);
    }

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void basePropertyChanged(const char* property) override;

    // Connects refreshConfig() to the concrete button's private slot
    // refresh(); call it from the concrete constructor. The connection goes
    // by method index: one to a member-function pointer would allocate a
    // slot object in every button.
    void connectRefreshSlot();

private:
    // The configuration calls these directly (it is owned by this button);
    // two connections would cost every button a signal table on its config.
    friend class IKaButtonConfig;
    void onConfigChanged();
    void syncIcons();

    QPointer<IKaButtonConfig> m_config;
    QString m_tooltipStyleSheet;
    QString m_defaultAccessibleName;
    int m_configWrites = 0;
};
