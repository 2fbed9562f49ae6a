#pragma once

#include "karvex_export.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

// A menu separator as QML describes it: an optional section header (`text`)
// followed by an optional line, a group line when `group` is set.
class KARVEX_EXPORT QmlKaMenuSeparatorData : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString textColorSetName READ textColorSetName WRITE setTextColorSetName NOTIFY
                   textColorSetNameChanged)
    Q_PROPERTY(bool group READ group WRITE setGroup NOTIFY groupChanged)
    Q_PROPERTY(bool autoWrap READ autoWrap WRITE setAutoWrap NOTIFY autoWrapChanged)
    Q_PROPERTY(bool showSeperatorLine READ showSeperatorLine WRITE setShowSeperatorLine NOTIFY
                   showSeperatorLineChanged)
    Q_PROPERTY(int maximumWidth READ maximumWidth WRITE setMaximumWidth NOTIFY maximumWidthChanged)
    Q_PROPERTY(int itemHeight READ itemHeight WRITE setItemHeight NOTIFY itemHeightChanged)
    Q_PROPERTY(int leftPadding READ leftPadding WRITE setLeftPadding NOTIFY leftPaddingChanged)
    Q_PROPERTY(int rightPadding READ rightPadding WRITE setRightPadding NOTIFY rightPaddingChanged)

public:
    explicit QmlKaMenuSeparatorData(QObject* parent = nullptr);
    ~QmlKaMenuSeparatorData() override;

    QString text() const { return m_text; }
    void setText(const QString& text);
    QString textColorSetName() const { return m_textColorSetName; }
    void setTextColorSetName(const QString& name);
    bool group() const { return m_group; }
    void setGroup(bool group);
    bool autoWrap() const { return m_autoWrap; }
    void setAutoWrap(bool wrap);
    bool showSeperatorLine() const { return m_showSeperatorLine; }
    void setShowSeperatorLine(bool show);
    int maximumWidth() const { return m_maximumWidth; }
    void setMaximumWidth(int width);
    int itemHeight() const { return m_itemHeight; }
    void setItemHeight(int height);
    int leftPadding() const { return m_leftPadding; }
    void setLeftPadding(int padding);
    int rightPadding() const { return m_rightPadding; }
    void setRightPadding(int padding);

Q_SIGNALS:
    void textChanged();
    void textColorSetNameChanged();
    void groupChanged();
    void autoWrapChanged();
    void showSeperatorLineChanged();
    void maximumWidthChanged();
    void itemHeightChanged();
    void leftPaddingChanged();
    void rightPaddingChanged();

private:
    QString m_text;
    QString m_textColorSetName;
    bool m_group = false;
    bool m_autoWrap = false;
    bool m_showSeperatorLine = true;
    int m_maximumWidth = 720;
    int m_itemHeight = 60;
    int m_leftPadding = 0;
    int m_rightPadding = 0;
};
