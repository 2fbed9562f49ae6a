#pragma once

#include "bzcssdata.h"

#include <QList>
#include <QMargins>
#include <QString>

struct QMetaObject;

// The one reader of style-sheet template text in the base layer. It splits
// text into rules and declarations once; the record header written by
// BzThemeUtils::convertToWCSS, the colour sets a free-form template names,
// its frame and the paddings a widget's own rules give are all read from
// that split.
class BzSheetReader {
public:
    struct Declaration {
        QString property; // lower case
        QString value;
    };
    struct Rule {
        QString selector; // empty for declarations outside any block
        QList<Declaration> declarations;
    };

    explicit BzSheetReader(const QString& text);

    // Text written by convertToWCSS: a record header, then its rules.
    bool hasRecordHeader() const { return m_hasHeader; }
    const QList<Rule>& rules() const { return m_rules; }

    // The record the text describes. For text with a record header the
    // switches and frame come from the header and the extra text follows the
    // marker; otherwise they keep their defaults.
    BzCSSData record() const;

    // Frame declared by a free-form template: "border-radius" and the width
    // of "border" / "border-width". Fields not declared stay untouched.
    void readFrame(int* radius, int* borderWidth) const;

    // Whether `selector` names a widget of class `metaObject` (or a base
    // class) and object name `objectName`, without pseudo-states.
    static bool selectorMatches(const QString& selector, const QMetaObject* metaObject,
                                const QString& objectName);
    // Applies the padding declarations of the rules that name the widget,
    // in order. Returns whether any was found.
    bool readPadding(const QMetaObject* metaObject, const QString& objectName, QMargins* padding) const;
    // Whether a rule only sets paddings of the widget itself: the base
    // widgets lay those out without Qt's style-sheet engine.
    static bool isOwnPaddingRule(const Rule& rule, const QMetaObject* metaObject, const QString& objectName);
    // The rules Qt's style-sheet engine still has to apply, as text.
    QString engineText(const QMetaObject* metaObject, const QString& objectName) const;

    static const char* recordHeader() { return "/*bz-css"; }
    static const char* extraMarker() { return "/*bz-extra*/"; }

private:
    void readHeader(const QString& text);
    void readRules(QStringView text);
    QString declaredSet(bool (*accept)(const QString& property)) const;

    QList<Rule> m_rules;
    bool m_hasHeader = false;
    qsizetype m_extraStart = -1;
    BzCSSData m_header;
};
