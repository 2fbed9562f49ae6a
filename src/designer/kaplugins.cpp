#include "kaplugins.h"

#include <kaannouncelabel.h>
#include <kaavatarview.h>
#include <kacheckbox.h>
#include <kacombobox.h>
#include <kadiscoverabilitywidget.h>
#include <kadualcombobutton.h>
#include <kadualiconbutton.h>
#include <kaemojilabel.h>
#include <kaemojipushbutton.h>
#include <kagiflabel.h>
#include <kaiconbutton.h>
#include <kalabel.h>
#include <kamultiplelinklabel.h>
#include <kapillbutton.h>
#include <kapintextfield.h>
#include <karadiobutton.h>
#include <karoundbadgebutton.h>
#include <karoundbutton.h>
#include <kasvglabel.h>
#include <katabview.h>
#include <katextbrowser.h>
#include <katextedit.h>
#include <katextfield.h>
#include <katextfieldwithhint.h>

#include <QIcon>

namespace {

// Properties of the form fragments, inside the widget element.

#define KARVEX_GEOMETRY(width)                                                                               \
    "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>" #width "</width><height>30</height></rect>"  \
    "</property>"

#define KARVEX_ENUM(property, value) "<property name=\"" property "\"><enum>" value "</enum></property>"

// Widgets without a text property of their own get a dynamic one.
const char kText[] =
    KARVEX_GEOMETRY(70) "<property name=\"text\" stdset=\"0\"><string>Text</string></property>";
const char kWideGeometry[] = KARVEX_GEOMETRY(150);
const char kNoProperties[] = "";
const char kPrimaryNormal[] =
    KARVEX_ENUM("style", "KaButtonEnum::Primary") KARVEX_ENUM("size", "KaButtonEnum::Normal");
const char kJoinExtraSmall[] =
    KARVEX_ENUM("style", "KaButtonEnum::Join") KARVEX_ENUM("size", "KaButtonEnum::ExtraSmall");
const char kIconTypeNone[] = KARVEX_ENUM("type", "KaIconButtonEnum::None");
const char kDualComboStyle[] = KARVEX_ENUM("style", "KaDualButtonEnum::LabelIconSecondary")
    KARVEX_ENUM("size", "KaDualButtonEnum::Normal");
const char kDualIconStyle[] = KARVEX_ENUM("style", "KaDualButtonEnum::SecondaryHorizontal")
    KARVEX_ENUM("size", "KaDualButtonEnum::Normal");
const char kTextFieldStyle[] =
    KARVEX_ENUM("style", "KaTextFieldEnum::Standard") KARVEX_ENUM("size", "KaTextFieldEnum::Normal");

#undef KARVEX_ENUM
#undef KARVEX_GEOMETRY

// Designer edits icon paths as untranslated URLs.

#define KARVEX_ICON_EDITOR(property, tip)                                                                    \
    "<stringpropertyspecification name=\"" property "\" notr=\"true\" type=\"url\"/>"                        \
    "<tooltip name=\"" property "\">" tip "</tooltip>"

const char kNoEditors[] = "";
const char kRoundButtonEditors[] = KARVEX_ICON_EDITOR("leftIcon", "Sets the left icon path of the button")
    KARVEX_ICON_EDITOR("leftIconOn", "Sets the on left icon path of the button for check state");
const char kPillButtonEditors[] = KARVEX_ICON_EDITOR("leftIcon", "Sets the left icon path of the button")
    KARVEX_ICON_EDITOR("leftIconOn", "Sets the on left icon path of the button for check state")
        KARVEX_ICON_EDITOR("rightIcon", "Sets the right icon path of the button")
            KARVEX_ICON_EDITOR("rightIconOn", "Sets the on right icon path of the button for check state");

#undef KARVEX_ICON_EDITOR

} // namespace

KaPluginBase::KaPluginBase(const char* className, const char* objectName, const char* properties,
                           const char* editors, QObject* parent)
    : QObject(parent)
    , m_className(className)
    , m_objectName(objectName)
    , m_properties(properties)
    , m_editors(editors) {}

QString KaPluginBase::name() const {
    return QString::fromLatin1(m_className);
}

QString KaPluginBase::group() const {
    return QStringLiteral("Karvex");
}

QString KaPluginBase::toolTip() const {
    return QString();
}

QString KaPluginBase::whatsThis() const {
    return QString();
}

// Headers are named after their class in lower case; code generated from a
// form must find them on case-sensitive file systems.
QString KaPluginBase::includeFile() const {
    return name().toLower() + QLatin1String(".h");
}

QIcon KaPluginBase::icon() const {
    return QIcon();
}

bool KaPluginBase::isContainer() const {
    return false;
}

bool KaPluginBase::isInitialized() const {
    return m_initialized;
}

void KaPluginBase::initialize(QDesignerFormEditorInterface*) {
    // Nothing to register with the form editor; the flag only tells
    // Designer that this ran.
    m_initialized = true;
}

QString KaPluginBase::domXml() const {
    return QLatin1String("<ui language=\"c++\"><widget class=\"") + QLatin1String(m_className) +
           QLatin1String("\" name=\"") + QLatin1String(m_objectName) + QLatin1String("\">") +
           QLatin1String(m_properties) + QLatin1String("</widget><customwidgets><customwidget><class>") +
           QLatin1String(m_className) + QLatin1String("</class><propertyspecifications>") +
           QLatin1String(m_editors) +
           QLatin1String("</propertyspecifications></customwidget></customwidgets></ui>");
}

QString KaPluginBase::codeTemplate() const {
    return QString();
}

#define KARVEX_DEFINE_DESIGNER_PLUGIN(Widget, ObjectName, Properties, Editors)                               \
    KaPlugin_##Widget::KaPlugin_##Widget(QObject* parent)                                                    \
        : KaPluginBase(#Widget, #ObjectName, Properties, Editors, parent) {}                                 \
    QWidget* KaPlugin_##Widget::createWidget(QWidget* parent) {                                              \
        return new Widget(parent);                                                                           \
    }

KARVEX_DESIGNER_WIDGETS(KARVEX_DEFINE_DESIGNER_PLUGIN)
KARVEX_DESIGNER_UNLISTED_WIDGETS(KARVEX_DEFINE_DESIGNER_PLUGIN)
