#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// The widgets that Designer can place, one row each, in widget-box order:
// X(widget class, object name in the form fragment, fragment properties,
// property specifications). The property and specification arguments name
// XML snippets defined in kaplugins.cpp; only that file expands them.
#define KARVEX_DESIGNER_WIDGETS(X)                                                                           \
    X(KaRoundButton, RoundButton, kPrimaryNormal, kRoundButtonSpecs)                                         \
    X(KaPillButton, PillButton, kPrimaryNormal, kPillButtonSpecs)                                            \
    X(KaIconButton, IconButton, kIconTypeNone, kNoSpecs)                                                     \
    X(KaDualComboButton, DualComboButton, kDualComboStyle, kNoSpecs)                                         \
    X(KaDualIconButton, DualIconButton, kDualIconStyle, kNoSpecs)                                            \
    X(KaEmojiPushButton, EmojiPushButton, kText, kNoSpecs)                                                   \
    X(KaTextField, TextField, kTextFieldStyle, kNoSpecs)                                                     \
    X(KaTextFieldWithHint, TextFieldWithHint, kTextFieldStyle, kNoSpecs)                                     \
    X(KaPinTextField, PinTextField, kTextFieldStyle, kNoSpecs)                                               \
    X(KaLabel, Label, kText, kNoSpecs)                                                                       \
    X(KaEmojiLabel, EmojiLabel, kText, kNoSpecs)                                                             \
    X(KaAnnounceLabel, AnnounceLabel, kText, kNoSpecs)                                                       \
    X(KaGifLabel, GifLabel, kText, kNoSpecs)                                                                 \
    X(KaMultipleLinkLabel, MultipleLinkLabel, kText, kNoSpecs)                                               \
    X(KaSvgLabel, SvgLabel, kText, kNoSpecs)                                                                 \
    X(KaCheckBox, CheckBox, kText, kNoSpecs)                                                                 \
    X(KaRadioButton, RadioButton, kText, kNoSpecs)                                                           \
    X(KaComboBox, ComboBox, kText, kNoSpecs)                                                                 \
    X(KaTabView, TabView, kWideGeometry, kNoSpecs)                                                           \
    X(KaAvatarView, AvatarView, kText, kNoSpecs)                                                             \
    X(KaDiscoverabilityWidget, DiscoverabilityWidget, kNoProperties, kNoSpecs)                               \
    X(KaRoundBadgeButton, RoundBadgeButton, kJoinExtraSmall, kNoSpecs)

// Plugins that exist but are not in the collection. Forms get these two by
// promoting a QTextEdit or QTextBrowser instead: a promoted widget keeps
// Designer's rich-text editor for its contents, which a custom widget of
// our own would lose.
#define KARVEX_DESIGNER_UNLISTED_WIDGETS(X)                                                                  \
    X(KaTextEdit, TextEdit, kNoProperties, kNoSpecs)                                                         \
    X(KaTextBrowser, TextBrowser, kNoProperties, kNoSpecs)

// What the plugins share: everything but the widget they create. The
// description strings are static data owned by kaplugins.cpp.
class KaPluginBase : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface* core) override;
    QString domXml() const override;
    QString codeTemplate() const override;

protected:
    KaPluginBase(const char* className, const char* objectName, const char* properties, const char* specs,
                 QObject* parent);

private:
    const char* m_className;
    const char* m_objectName;
    const char* m_properties;
    const char* m_specs;
    bool m_initialized = false;
};

#define KARVEX_DECLARE_DESIGNER_PLUGIN(Widget, ObjectName, Properties, Specs)                                \
    class KaPlugin_##Widget final : public KaPluginBase {                                                    \
    public:                                                                                                  \
        explicit KaPlugin_##Widget(QObject* parent = nullptr);                                               \
        QWidget* createWidget(QWidget* parent) override;                                                     \
    };

KARVEX_DESIGNER_WIDGETS(KARVEX_DECLARE_DESIGNER_PLUGIN)
KARVEX_DESIGNER_UNLISTED_WIDGETS(KARVEX_DECLARE_DESIGNER_PLUGIN)
