#include "bzsheetreader_p.h"

#include "bzwidgettheme_p.h"

#include <QMetaObject>

#include <algorithm>

namespace {

// "12px", "12" (Qt reads a bare number as pixels); anything else is 0.
int lengthOf(QStringView value) {
    value = value.trimmed();
    if (value.endsWith(QLatin1String("px"), Qt::CaseInsensitive))
        value.chop(2);
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok ? qRound(number) : 0;
}

bool isBackground(const QString& p) {
    return p == QLatin1String("background-color") || p == QLatin1String("background");
}

bool isBorderColour(const QString& p) {
    return p.startsWith(QLatin1String("border")) && !p.endsWith(QLatin1String("radius")) &&
           !p.endsWith(QLatin1String("width")) && !p.endsWith(QLatin1String("style"));
}

bool isText(const QString& p) {
    return p == QLatin1String("color");
}

bool isPadding(const QString& p) {
    return p == QLatin1String("padding") || p.startsWith(QLatin1String("padding-"));
}

void appendDeclarations(QStringView body, QList<BzSheetReader::Declaration>* out) {
    for (QStringView declaration : body.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const qsizetype colon = declaration.indexOf(QLatin1Char(':'));
        if (colon < 0)
            continue;
        const QString property = declaration.left(colon).trimmed().toString().toLower();
        if (property.isEmpty())
            continue;
        out->append({property, declaration.mid(colon + 1).trimmed().toString()});
    }
}

} // namespace

BzSheetReader::BzSheetReader(const QString& text) {
    ++bzThemeCounters().templateParses;
    readHeader(text);
    // Behind a record header, the extra text is the record's extraCSS; its
    // rules do not name the record's own colour sets.
    readRules(m_hasHeader && m_extraStart >= 0 ? QStringView(text).left(m_extraStart) : QStringView(text));
}

void BzSheetReader::readHeader(const QString& text) {
    const QLatin1String header(recordHeader());
    if (!text.startsWith(header))
        return;
    const qsizetype end = text.indexOf(QLatin1String("*/"));
    if (end < 0)
        return;
    m_hasHeader = true;
    const QStringView fields = QStringView(text).mid(header.size(), end - header.size());
    for (QStringView field : fields.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const qsizetype eq = field.indexOf(QLatin1Char('='));
        if (eq < 0)
            continue;
        const QStringView key = field.left(eq);
        const QStringView value = field.mid(eq + 1);
        if (key == QLatin1String("switches")) {
            const auto parts = value.split(QLatin1Char(','));
            for (int i = 0; i < BzCSSData::SwitchCount && i < parts.size(); ++i)
                m_header.switches[i] = parts.at(i).toInt();
        } else if (key == QLatin1String("radius")) {
            m_header.borderRadius = value.toInt();
        } else if (key == QLatin1String("width")) {
            m_header.borderWidth = value.toInt();
        }
    }
    const QLatin1String marker(extraMarker());
    const qsizetype extra = text.indexOf(marker, end);
    if (extra >= 0) {
        m_extraStart = extra;
        m_header.extraCSS = text.mid(extra + marker.size());
    }
}

void BzSheetReader::readRules(QStringView text) {
    QString pending; // text outside blocks, comments removed
    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n) {
        if (text.mid(i, 2) == QLatin1String("/*")) {
            const qsizetype close = text.indexOf(QLatin1String("*/"), i + 2);
            i = close < 0 ? n : close + 2;
            continue;
        }
        const QChar c = text.at(i);
        if (c != QLatin1Char('{')) {
            pending.append(c);
            ++i;
            continue;
        }
        // Declarations before the selector stand outside any block.
        const qsizetype split = pending.lastIndexOf(QLatin1Char(';'));
        if (split >= 0) {
            Rule bare;
            appendDeclarations(QStringView(pending).left(split), &bare.declarations);
            if (!bare.declarations.isEmpty())
                m_rules.append(bare);
        }
        Rule rule;
        rule.selector = QStringView(pending).mid(split + 1).trimmed().toString();
        pending.clear();
        qsizetype close = text.indexOf(QLatin1Char('}'), i + 1);
        if (close < 0)
            close = n;
        QString body = text.mid(i + 1, close - i - 1).toString();
        // Comments inside a block.
        for (qsizetype c0 = body.indexOf(QLatin1String("/*")); c0 >= 0;
             c0 = body.indexOf(QLatin1String("/*"))) {
            const qsizetype c1 = body.indexOf(QLatin1String("*/"), c0 + 2);
            body.remove(c0, c1 < 0 ? body.size() - c0 : c1 + 2 - c0);
        }
        appendDeclarations(body, &rule.declarations);
        m_rules.append(rule);
        i = close + 1;
    }
    Rule bare;
    appendDeclarations(pending, &bare.declarations);
    if (!bare.declarations.isEmpty())
        m_rules.append(bare);
}

QString BzSheetReader::declaredSet(bool (*accept)(const QString& property)) const {
    for (const Rule& rule : m_rules) {
        for (const Declaration& d : rule.declarations) {
            if (!accept(d.property))
                continue;
            const qsizetype ref = d.value.indexOf(QLatin1String("$("));
            const qsizetype close = d.value.indexOf(QLatin1Char(')'), ref);
            if (ref < 0 || close <= ref)
                continue;
            QStringView name = QStringView(d.value).mid(ref + 2, close - ref - 2).trimmed();
            const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
            if (dot >= 0)
                name.truncate(dot);
            return name.toString();
        }
    }
    return QString();
}

BzCSSData BzSheetReader::record() const {
    BzCSSData data = m_hasHeader ? m_header : BzCSSData();
    data.backgroundColorSet = declaredSet(isBackground);
    data.borderColorSet = declaredSet(isBorderColour);
    data.textColorSet = declaredSet(isText);
    return data;
}

void BzSheetReader::readFrame(int* radius, int* borderWidth) const {
    for (const Rule& rule : m_rules) {
        for (const Declaration& d : rule.declarations) {
            if (d.property == QLatin1String("border-radius")) {
                *radius = lengthOf(QStringView(d.value).split(QLatin1Char(' '), Qt::SkipEmptyParts).value(0));
            } else if (d.property == QLatin1String("border-width") || d.property == QLatin1String("border")) {
                // The first length with a unit: "1px solid $(set)".
                for (QStringView part : QStringView(d.value).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
                    if (!part.isEmpty() && part.at(0).isDigit()) {
                        *borderWidth = lengthOf(part);
                        break;
                    }
                }
            }
        }
    }
}

bool BzSheetReader::selectorMatches(const QString& selectorText, const QMetaObject* metaObject,
                                    const QString& objectName) {
    QStringView selector = QStringView(selectorText).trimmed();
    if (selector.isEmpty())
        return true;
    if (selector.contains(QLatin1Char(':')) || selector.contains(QLatin1Char('[')) ||
        selector.contains(QLatin1Char(',')))
        return false;
    // Only the last compound selector names the widget itself.
    const qsizetype split =
        std::max(selector.lastIndexOf(QLatin1Char(' ')), selector.lastIndexOf(QLatin1Char('>')));
    if (split >= 0)
        selector = selector.mid(split + 1);
    const qsizetype hash = selector.indexOf(QLatin1Char('#'));
    QStringView type = hash < 0 ? selector : selector.left(hash);
    if (hash >= 0 && selector.mid(hash + 1) != objectName)
        return false;
    if (type.isEmpty() || type == QLatin1String("*"))
        return true;
    const bool exact = type.startsWith(QLatin1Char('.'));
    if (exact)
        type = type.mid(1);
    for (const QMetaObject* mo = metaObject; mo; mo = mo->superClass()) {
        if (type == QLatin1String(mo->className()))
            return true;
        if (exact)
            return false;
    }
    return false;
}

bool BzSheetReader::readPadding(const QMetaObject* metaObject, const QString& objectName,
                                QMargins* padding) const {
    bool found = false;
    for (const Rule& rule : m_rules) {
        if (!selectorMatches(rule.selector, metaObject, objectName))
            continue;
        for (const Declaration& d : rule.declarations) {
            if (d.property == QLatin1String("padding")) {
                QList<int> v;
                for (QStringView part : QStringView(d.value).split(QLatin1Char(' '), Qt::SkipEmptyParts))
                    v.append(lengthOf(part));
                if (v.isEmpty())
                    continue;
                // CSS shorthand: top [right [bottom [left]]].
                const int top = v.at(0);
                const int right = v.size() > 1 ? v.at(1) : top;
                const int bottom = v.size() > 2 ? v.at(2) : top;
                const int left = v.size() > 3 ? v.at(3) : right;
                *padding = QMargins(left, top, right, bottom);
            } else if (d.property == QLatin1String("padding-left")) {
                padding->setLeft(lengthOf(d.value));
            } else if (d.property == QLatin1String("padding-right")) {
                padding->setRight(lengthOf(d.value));
            } else if (d.property == QLatin1String("padding-top")) {
                padding->setTop(lengthOf(d.value));
            } else if (d.property == QLatin1String("padding-bottom")) {
                padding->setBottom(lengthOf(d.value));
            } else {
                continue;
            }
            found = true;
        }
    }
    return found;
}

bool BzSheetReader::isOwnPaddingRule(const Rule& rule, const QMetaObject* metaObject,
                                     const QString& objectName) {
    if (rule.selector.isEmpty() || rule.declarations.isEmpty() ||
        !selectorMatches(rule.selector, metaObject, objectName))
        return false;
    return std::all_of(rule.declarations.cbegin(), rule.declarations.cend(),
                       [](const Declaration& d) { return isPadding(d.property); });
}

QString BzSheetReader::engineText(const QMetaObject* metaObject, const QString& objectName) const {
    QString text;
    for (const Rule& rule : m_rules) {
        if (isOwnPaddingRule(rule, metaObject, objectName))
            continue;
        QString body;
        for (const Declaration& d : rule.declarations)
            body += d.property + QLatin1Char(':') + d.value + QLatin1Char(';');
        text += rule.selector.isEmpty() ? body : rule.selector + QLatin1Char('{') + body + QLatin1Char('}');
    }
    return text;
}
