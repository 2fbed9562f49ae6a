#include "bzthemeutils.h"

#include "bzthememanager.h"
#include "bzwidgettheme_p.h"

#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QMetaObject>
#include <QPointer>
#include <QSet>
#include <QWidget>

namespace {

bool s_refreshing = false;

const char kHeader[] = "/*bz-css";
const char kExtraMarker[] = "/*bz-extra*/";
const char kCssProperty[] = "css";

struct ParseCache {
    QHash<QString, BzCSSData> entries; // key: theme name + '\n' + template
    QSet<QString> warnedNames;
    QSet<QString> warnedTemplates;
    bool connected = false;
};

ParseCache& cache() {
    static ParseCache c;
    if (!c.connected) {
        c.connected = true;
        // A re-registered theme may change any resolved text.
        QObject::connect(BzThemeManager::instance(), &BzThemeManager::themeRegistered,
                         [] { cache().entries.clear(); });
    }
    return c;
}

BzColorSet lookup(const QString& name, const QHash<QString, BzColorSet>& sets) {
    auto it = sets.constFind(name);
    if (it != sets.cend())
        return *it;
    ParseCache& c = cache();
    if (!c.warnedNames.contains(name)) {
        c.warnedNames.insert(name);
        qWarning("BzThemeUtils: unknown colour set \"%s\" resolves to transparent", qPrintable(name));
    }
    return BzColorSet(name, QColor(0, 0, 0, 0));
}

// Replaces every $(set) / $(set.state) with its colour. Returns false when the
// template is malformed; the faulty part is then copied through unchanged.
bool resolveReferences(const QString& css, const QHash<QString, BzColorSet>& sets, QString* out,
                       QStringList* referenced = nullptr) {
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
        const QString setName = name.toString();
        if (referenced)
            referenced->append(setName);
        out->append(BzThemeUtils::colorToCss(lookup(setName, sets).color(state)));
        pos = end + 1;
    }
    return ok;
}

// The set named by the first $(...) in the value of a declaration whose
// property matches `accept`.
template <typename Accept> QString declaredSet(const QString& css, Accept accept) {
    qsizetype pos = 0;
    while (true) {
        const qsizetype colon = css.indexOf(QLatin1Char(':'), pos);
        if (colon < 0)
            return QString();
        qsizetype propStart = colon;
        while (propStart > 0 &&
               (css.at(propStart - 1).isLetterOrNumber() || css.at(propStart - 1) == QLatin1Char('-')))
            --propStart;
        const QString property = css.mid(propStart, colon - propStart);
        qsizetype valueEnd = css.indexOf(QLatin1Char(';'), colon);
        const qsizetype brace = css.indexOf(QLatin1Char('}'), colon);
        if (valueEnd < 0 || (brace >= 0 && brace < valueEnd))
            valueEnd = brace < 0 ? css.size() : brace;
        if (!property.isEmpty() && accept(property)) {
            const QString value = css.mid(colon + 1, valueEnd - colon - 1);
            const qsizetype ref = value.indexOf(QLatin1String("$("));
            const qsizetype close = value.indexOf(QLatin1Char(')'), ref);
            if (ref >= 0 && close > ref) {
                QString name = value.mid(ref + 2, close - ref - 2).trimmed();
                const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
                if (dot >= 0)
                    name.truncate(dot);
                return name;
            }
        }
        pos = colon + 1;
    }
}

void readHeader(const QString& css, BzCSSData* data) {
    const qsizetype start = css.indexOf(QLatin1String(kHeader));
    if (start < 0)
        return;
    const qsizetype end = css.indexOf(QLatin1String("*/"), start);
    const QString header = css.mid(start + int(sizeof(kHeader)) - 1, end - start - int(sizeof(kHeader)) + 1);
    for (const QString& field : header.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString key = field.section(QLatin1Char('='), 0, 0);
        const QString value = field.section(QLatin1Char('='), 1);
        if (key == QLatin1String("switches")) {
            const QStringList parts = value.split(QLatin1Char(','));
            for (int i = 0; i < BzCSSData::SwitchCount && i < parts.size(); ++i)
                data->switches[i] = parts.at(i).toInt();
        } else if (key == QLatin1String("radius")) {
            data->borderRadius = value.toInt();
        } else if (key == QLatin1String("width")) {
            data->borderWidth = value.toInt();
        }
    }
    const qsizetype extra = css.indexOf(QLatin1String(kExtraMarker));
    if (extra >= 0)
        data->extraCSS = css.mid(extra + int(sizeof(kExtraMarker)) - 1);
}

BzCSSData parseUncached(const QString& css, const QHash<QString, BzColorSet>& sets) {
    BzCSSData data;
    readHeader(css, &data);
    data.backgroundColorSet = declaredSet(css, [](const QString& p) {
        return p == QLatin1String("background-color") || p == QLatin1String("background");
    });
    data.borderColorSet = declaredSet(css, [](const QString& p) {
        return p.startsWith(QLatin1String("border")) && !p.endsWith(QLatin1String("radius")) &&
               !p.endsWith(QLatin1String("width")) && !p.endsWith(QLatin1String("style"));
    });
    data.textColorSet = declaredSet(css, [](const QString& p) { return p == QLatin1String("color"); });
    if (!resolveReferences(css, sets, &data.styleSheet)) {
        ParseCache& c = cache();
        if (!c.warnedTemplates.contains(css)) {
            c.warnedTemplates.insert(css);
            qWarning("BzThemeUtils: malformed colour reference in style sheet template: %s",
                     qPrintable(css.left(200)));
        }
    }
    return data;
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
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        const QVariant v = w->property("themeType");
        if (!v.isValid())
            continue;
        if (v.typeId() == QMetaType::QString || v.typeId() == QMetaType::QByteArray)
            return stringToThemeType(v.toString());
        bool ok = false;
        const int n = v.toInt(&ok);
        if (ok && n >= Global && n <= HighContrast)
            return AppThemeType(n);
    }
    return Global;
}

bool isHighContrastEnabled() {
    return BzThemeManager::instance()->currentTheme().isHighContrast();
}

BzColorSet transparentColourSet() {
    return BzColorSet(QStringLiteral("transparent"), QColor(0, 0, 0, 0));
}

BzCSSData parseCSS(const QWidget* widget, const QString& css, const QHash<QString, BzColorSet>& colourSets) {
    BzThemeManager* manager = BzThemeManager::instance();
    const BzTheme& theme = manager->themeFor(getThemeTypeOfWidget(widget));
    const bool isCurrent = &theme == &manager->currentTheme();
    // A caller-supplied map other than the current theme's is resolved as is.
    if (isCurrent && &colourSets != &theme.colorSets())
        return parseUncached(css, colourSets);
    ParseCache& c = cache();
    const QString key = theme.name() + QLatin1Char('\n') + css;
    auto it = c.entries.constFind(key);
    if (it != c.entries.cend())
        return *it;
    const BzCSSData data = parseUncached(css, theme.colorSets());
    c.entries.insert(key, data);
    return data;
}

QString resolveTemplate(const QString& css, AppThemeType type) {
    QString out;
    if (!resolveReferences(css, BzThemeManager::instance()->themeFor(type).colorSets(), &out))
        qWarning("BzThemeUtils: malformed colour reference in style sheet template: %s",
                 qPrintable(css.left(200)));
    return out;
}

QString convertToWCSS(const BzCSSData& data) {
    QString css = QLatin1String(kHeader) + QLatin1String(" switches=");
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
        css += QLatin1String(kExtraMarker) + data.extraCSS;
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
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            window->update();
    }
}

} // namespace BzThemeUtils

bool bzThemeRefreshInProgress() {
    return s_refreshing;
}
