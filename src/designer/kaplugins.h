#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// The widgets that Designer can place, one row each, in widget-box order:
// X(widget class, object name in the form fragment, fragment properties,
// Designer property editors). The property and editor arguments name
// XML snippets defined in kaplugins.cpp; only that file expands them.
#define KARVEX_DESIGNER_WIDGETS(X)                                                                           \
    X(KaRoundButton, RoundButton, kPrimaryNormal, kRoundButtonEditors)                                       \
    X(KaPillButton, PillButton, kPrimaryNormal, kPillButtonEditors)                                          \
    X(KaIconButton, IconButton, kIconTypeNone, kNoEditors)                                                   \
    X(KaDualComboButton, DualComboButton, kDualComboStyle, kNoEditors)                                       \
    X(KaDualIconButton, DualIconButton, kDualIconStyle, kNoEditors)                                          \
    X(KaEmojiPushButton, EmojiPushButton, kText, kNoEditors)                                                 \
    X(KaTextField, TextField, kTextFieldStyle, kNoEditors)                                                   \
    X(KaTextFieldWithHint, TextFieldWithHint, kTextFieldStyle, kNoEditors)                                   \
    X(KaPinTextField, PinTextField, kTextFieldStyle, kNoEditors)                                             \
    X(KaLabel, Label, kText, kNoEditors)                                                                     \
    X(KaEmojiLabel, EmojiLabel, kText, kNoEditors)                                                           \
    X(KaAnnounceLabel, AnnounceLabel, kText, kNoEditors)                                                     \
    X(KaGifLabel, GifLabel, kText, kNoEditors)                                                               \
    X(KaMultipleLinkLabel, MultipleLinkLabel, kText, kNoEditors)                                             \
    X(KaSvgLabel, SvgLabel, kText, kNoEditors)                                                               \
    X(KaCheckBox, CheckBox, kText, kNoEditors)                                                               \
    X(KaRadioButton, RadioButton, kText, kNoEditors)                                                         \
    X(KaComboBox, ComboBox, kText, kNoEditors)                                                               \
    X(KaTabView, TabView, kWideGeometry, kNoEditors)                                                         \
    X(KaAvatarView, AvatarView, kText, kNoEditors)                                                           \
    X(KaDiscoverabilityWidget, DiscoverabilityWidget, kNoProperties, kNoEditors)                             \
    X(KaRoundBadgeButton, RoundBadgeButton, kJoinExtraSmall, kNoEditors)

// Plugins that exist but are not in the collection. Forms get these two by
// promoting a QTextEdit or QTextBrowser instead: a promoted widget keeps
// Designer's rich-text editor for its contents, which a custom widget of
// our own would lose.
#define KARVEX_DESIGNER_UNLISTED_WIDGETS(X)                                                                  \
    X(KaTextEdit, TextEdit, kNoProperties, kNoEditors)                                                       \
    X(KaTextBrowser, TextBrowser, kNoProperties, kNoEditors)

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
    KaPluginBase(const char* className, const char* objectName, const char* properties, const char* editors,
                 QObject* parent);

private:
    const char* m_className;
    const char* m_objectName;
    const char* m_properties;
    const char* m_editors;
    bool m_initialized = false;
};

#define KARVEX_DECLARE_DESIGNER_PLUGIN(Widget, ObjectName, Properties, Editors)                              \
    class KaPlugin_##Widget final : public KaPluginBase {                                                    \
    public:                                                                                                  \
        explicit KaPlugin_##Widget(QObject* parent = nullptr);                                               \
        QWidget* createWidget(QWidget* parent) override;                                                     \
    };

KARVEX_DESIGNER_WIDGETS(KARVEX_DECLARE_DESIGNER_PLUGIN)
KARVEX_DESIGNER_UNLISTED_WIDGETS(KARVEX_DECLARE_DESIGNER_PLUGIN)
