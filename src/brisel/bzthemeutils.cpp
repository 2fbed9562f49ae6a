#include "bzthemeutils.h"

#include "bzsheetreader_p.h"
#include "bzthememanager.h"
#include "bzwidgettheme_p.h"

#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QMetaMethod>
#include <QMetaObject>
#include <QPointer>
#include <QSet>
#include <QWidget>

namespace {

bool s_refreshing = false;
quint64 s_refreshSerial = 0;
// Theme types found while a refresh walks every widget: ancestors are
// shared, so each widget's chain is read once per refresh.
QHash<const QWidget*, BzThemeUtils::AppThemeType> s_typeMemo;

const char kCssProperty[] = "css";

// Names and templates already warned about. Bounded like every cache here:
// a host feeding endless distinct faulty input gets its warnings again
// rather than a growing heap.
constexpr qsizetype kMaxWarned = 1024;

bool firstWarning(QSet<QString>& warned, const QString& key) {
    if (warned.contains(key))
        return false;
    if (warned.size() >= kMaxWarned)
        warned.clear();
    warned.insert(key);
    return true;
}

QSet<QString>& warnedNames() {
    static QSet<QString> names;
    return names;
}

QSet<QString>& warnedTemplates() {
    static QSet<QString> templates;
    return templates;
}

BzColorSet lookup(const QString& name, const QHash<QString, BzColorSet>& sets) {
    ++bzThemeCounters().colorSetLookups;
    auto it = sets.constFind(name);
    if (it != sets.cend())
        return *it;
    if (firstWarning(warnedNames(), name))
        qWarning("BzThemeUtils: unknown colour set \"%s\" resolves to transparent", qPrintable(name));
    return BzColorSet(name, QColor(0, 0, 0, 0));
}

// Replaces every $(set) / $(set.state) with its colour. Returns false when the
// template is malformed; the faulty part is then copied through unchanged.
bool resolveReferences(const QString& css, const QHash<QString, BzColorSet>& sets, QString* out) {
    ++bzThemeCounters().templateParses;
    out->clear();
    out->reserve(css.size() + 64);
    bool ok = true;
    qsizetype pos = 0;
    while (true) {
        const qsizetype start = css.indexOf(QLatin1String("$("), pos);
        if (start < 0) {
            out->append(QStringView(css).mid(pos));
            break;
        }
        out->append(QStringView(css).mid(pos, start - pos));
        const qsizetype end = css.indexOf(QLatin1Char(')'), start + 2);
        const QStringView inner =
            end < 0 ? QStringView() : QStringView(css).mid(start + 2, end - start - 2).trimmed();
        if (end < 0 || inner.isEmpty() || inner.contains(QLatin1Char('(')) ||
            inner.contains(QLatin1Char(';'))) {
            ok = false;
            out->append(QStringView(css).mid(start, 2));
            pos = start + 2;
            continue;
        }
        QStringView name = inner;
        BzColorSet::State state = BzColorSet::Normal;
        const qsizetype dot = inner.lastIndexOf(QLatin1Char('.'));
        if (dot >= 0) {
            name = inner.left(dot);
            state = BzColorSet::stateFromName(inner.mid(dot + 1).toString());
            if (state == BzColorSet::StateCount) {
                ok = false;
                state = BzColorSet::Normal;
            }
        }
        out->append(BzThemeUtils::colorToCss(lookup(name.toString(), sets).color(state)));
        pos = end + 1;
    }
    return ok;
}

QString resolveWarning(const QString& css, const QHash<QString, BzColorSet>& sets) {
    QString out;
    if (!resolveReferences(css, sets, &out) && firstWarning(warnedTemplates(), css))
        qWarning("BzThemeUtils: malformed colour reference in style sheet template: %s",
                 qPrintable(css.left(200)));
    return out;
}

// Keeps plain widgets' style sheets in step with their "css" property.
class CssWatcher : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::DynamicPropertyChange &&
            static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == kCssProperty) {
            auto* widget = qobject_cast<QWidget*>(watched);
            const QVariant css = widget ? widget->property(kCssProperty) : QVariant();
            // A removed property is the first half of a refresh: wait for the write.
            if (css.isValid()) {
                const BzCSSData data =
                    BzThemeUtils::parseCSS(widget, css.toString(), BzThemeUtils::getAppWColorSets());
                if (widget->styleSheet() != data.styleSheet)
                    widget->setStyleSheet(data.styleSheet);
            }
        }
        return false;
    }
};

} // namespace

namespace BzThemeUtils {

QString themeTypeToString(AppThemeType type) {
    switch (type) {
    case Light:
        return QStringLiteral("light");
    case Alternate:
        return QStringLiteral("alternate");
    case Dark:
        return QStringLiteral("dark");
    case HighContrast:
        return QStringLiteral("highContrast");
    case Global:
        break;
    }
    return QStringLiteral("global");
}

AppThemeType stringToThemeType(const QString& text) {
    const QString t = text.trimmed();
    for (int i = Global; i <= HighContrast; ++i) {
        if (t.compare(themeTypeToString(AppThemeType(i)), Qt::CaseInsensitive) == 0)
            return AppThemeType(i);
    }
    bool isNumber = false;
    const int n = t.toInt(&isNumber);
    if (isNumber && n >= Global && n <= HighContrast)
        return AppThemeType(n);
    qWarning("BzThemeUtils: unknown theme type \"%s\", using \"global\"", qPrintable(text));
    return Global;
}

QString themeNameForType(AppThemeType type) {
    return BzThemeManager::instance()->themeFor(type).name();
}

BzColorSet getColorSet(const QString& name, AppThemeType type) {
    return lookup(name, BzThemeManager::instance()->themeFor(type).colorSets());
}

BzColorSet getColorSet(const std::string& name, AppThemeType type) {
    return getColorSet(QString::fromStdString(name), type);
}

BzColorSet getColorSet(const char* name, AppThemeType type) {
    return getColorSet(QString::fromUtf8(name), type);
}

const QHash<QString, BzColorSet>& getAppWColorSets() {
    return BzThemeManager::instance()->currentTheme().colorSets();
}

AppThemeType getThemeTypeOfWidget(const QWidget* widget) {
    if (!widget)
        return Global;
    if (s_refreshing) {
        auto it = s_typeMemo.constFind(widget);
        if (it != s_typeMemo.cend())
            return *it;
    }
    AppThemeType type = Global;
    const QVariant v = widget->property("themeType");
    bool found = false;
    if (v.isValid()) {
        if (v.typeId() == QMetaType::QString || v.typeId() == QMetaType::QByteArray) {
            type = stringToThemeType(v.toString());
            found = true;
        } else {
            bool ok = false;
            const int n = v.toInt(&ok);
            if (ok && n >= Global && n <= HighContrast) {
                type = AppThemeType(n);
                found = true;
            }
        }
    }
    if (!found)
        type = getThemeTypeOfWidget(widget->parentWidget());
    if (s_refreshing)
        s_typeMemo.insert(widget, type);
    return type;
}

bool isHighContrastEnabled() {
    return BzThemeManager::instance()->currentTheme().isHighContrast();
}

BzColorSet transparentColourSet() {
    return BzColorSet(QStringLiteral("transparent"), QColor(0, 0, 0, 0));
}

BzCSSData parseCSS(const QWidget* widget, const QString& css, const QHash<QString, BzColorSet>& colourSets) {
    const AppThemeType type = getThemeTypeOfWidget(widget);
    BzThemeManager* manager = BzThemeManager::instance();
    const BzTheme& theme = manager->themeFor(type);
    const BzAppearance::Ptr appearance = BzAppearance::fromText(css);
    BzCSSData data = appearance->record;
    // A caller-supplied map other than the current theme's is resolved as is.
    if (&theme == &manager->currentTheme() && &colourSets != &theme.colorSets())
        data.styleSheet = resolveWarning(css, colourSets);
    else
        data.styleSheet = appearance->resolvedText(type);
    return data;
}

QString resolveTemplate(const QString& css, AppThemeType type) {
    return resolveWarning(css, BzThemeManager::instance()->themeFor(type).colorSets());
}

QString convertToWCSS(const BzCSSData& data) {
    QString css = QLatin1String(BzSheetReader::recordHeader()) + QLatin1String(" switches=");
    for (int i = 0; i < BzCSSData::SwitchCount; ++i) {
        if (i)
            css += QLatin1Char(',');
        css += QString::number(data.switches[i]);
    }
    css += QLatin1String(" radius=") + QString::number(data.borderRadius) + QLatin1String(" width=") +
           QString::number(data.borderWidth) + QLatin1String("*/\n");
    if (!data.backgroundColorSet.trimmed().isEmpty() && data.isOn(BzCSSData::PaintBackground))
        css +=
            QLatin1String("background-color: $(") + data.backgroundColorSet.trimmed() + QLatin1String(");\n");
    if (!data.borderColorSet.trimmed().isEmpty() && data.hasAnyBorder()) {
        const auto side = [&](BzCSSData::Switch s) -> QString {
            return QString::number(data.isOn(s) ? data.borderWidth : 0) + QLatin1String("px");
        };
        css += QLatin1String("border-style: solid;\nborder-width: ") + side(BzCSSData::BorderTop) +
               QLatin1Char(' ') + side(BzCSSData::BorderRight) + QLatin1Char(' ') +
               side(BzCSSData::BorderBottom) + QLatin1Char(' ') + side(BzCSSData::BorderLeft) +
               QLatin1String(";\nborder-color: $(") + data.borderColorSet.trimmed() + QLatin1String(");\n");
    }
    if (data.borderRadius > 0)
        css += QLatin1String("border-radius: ") + QString::number(data.borderRadius) + QLatin1String("px;\n");
    if (!data.textColorSet.trimmed().isEmpty())
        css += QLatin1String("color: $(") + data.textColorSet.trimmed() + QLatin1String(");\n");
    if (!data.extraCSS.isEmpty())
        css += QLatin1String(BzSheetReader::extraMarker()) + data.extraCSS;
    return css;
}

QString colorToCss(const QColor& color) {
    const int alpha = color.alpha();
    const int decimals = (alpha == 0 || alpha == 255) ? 1 : 2;
    return QLatin1String("rgba(") + QString::number(color.red()) + QLatin1Char(',') +
           QString::number(color.green()) + QLatin1Char(',') + QString::number(color.blue()) +
           QLatin1Char(',') + QString::number(alpha / 255.0, 'f', decimals) + QLatin1Char(')');
}

void setWidgetCSS(QWidget* widget, const QString& css) {
    if (!widget) {
        qWarning("BzThemeUtils::setWidgetCSS: null widget ignored");
        return;
    }
    static CssWatcher* watcher = new CssWatcher;
    if (!widget->property("_bz_css_watched").toBool()) {
        widget->setProperty("_bz_css_watched", true);
        widget->installEventFilter(watcher);
    }
    // Writing the property is what applies it (see CssWatcher).
    widget->setProperty(kCssProperty, css);
}

void refreshWidgetThemes() {
    // Base widgets re-resolve while "css" is rewritten but leave the repaint
    // to one update per window below: thousands of single dirty widgets cost
    // Qt far more to merge than one dirty window.
    s_refreshing = true;
    ++s_refreshSerial;
    s_typeMemo.clear();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        const QVariant css = widget->property(kCssProperty);
        if (css.isValid() && !css.toString().isEmpty()) {
            // Base widgets declare "css" as a property whose setter always
            // re-resolves. Qt sends no change event for a dynamic property
            // written with its own value, so clear that one first.
            if (widget->metaObject()->indexOfProperty(kCssProperty) < 0)
                widget->setProperty(kCssProperty, QVariant());
            widget->setProperty(kCssProperty, css);
        }
        if (widget->metaObject()->indexOfMethod("onThemeChanged()") >= 0)
            QMetaObject::invokeMethod(widget, "onThemeChanged", Qt::QueuedConnection);
    }
    s_refreshing = false;
    s_typeMemo.clear();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            window->update();
    }
}

} // namespace BzThemeUtils

bool bzThemeRefreshInProgress() {
    return s_refreshing;
}

quint64 bzThemeRefreshSerial() {
    return s_refreshSerial;
}

QMetaObject::Connection BzThemeUtils::connectParentThemeType(QObject* parent, QObject* receiver) {
    if (!parent || !receiver)
        return {};
    const int signal = parent->metaObject()->indexOfSignal("themeTypeChanged()");
    const int slot = receiver->metaObject()->indexOfSlot("onParentThemeTypeChanged()");
    if (signal < 0 || slot < 0)
        return {};
    return QObject::connect(parent, parent->metaObject()->method(signal), receiver,
                            receiver->metaObject()->method(slot));
}
