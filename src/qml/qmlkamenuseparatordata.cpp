#include "qmlkamenuseparatordata.h"

#include "qmlkadescriptionutils_p.h"

QmlKaMenuSeparatorData::QmlKaMenuSeparatorData(QObject* parent)
    : QObject(parent) {}

QmlKaMenuSeparatorData::~QmlKaMenuSeparatorData() = default;

void QmlKaMenuSeparatorData::setText(const QString& text) {
    if (QmlKaDescriptionUtils::assign(m_text, text))
        Q_EMIT textChanged();
}

void QmlKaMenuSeparatorData::setTextColorSetName(const QString& name) {
    if (QmlKaDescriptionUtils::assign(m_textColorSetName, name))
        Q_EMIT textColorSetNameChanged();
}

void QmlKaMenuSeparatorData::setGroup(bool group) {
    if (QmlKaDescriptionUtils::assign(m_group, group))
        Q_EMIT groupChanged();
}

void QmlKaMenuSeparatorData::setAutoWrap(bool wrap) {
    if (QmlKaDescriptionUtils::assign(m_autoWrap, wrap))
        Q_EMIT autoWrapChanged();
}

void QmlKaMenuSeparatorData::setShowSeperatorLine(bool show) {
    if (QmlKaDescriptionUtils::assign(m_showSeperatorLine, show))
        Q_EMIT showSeperatorLineChanged();
}

void QmlKaMenuSeparatorData::setMaximumWidth(int width) {
    if (QmlKaDescriptionUtils::assign(m_maximumWidth, width))
        Q_EMIT maximumWidthChanged();
}

void QmlKaMenuSeparatorData::setItemHeight(int height) {
    if (QmlKaDescriptionUtils::assign(m_itemHeight, height))
        Q_EMIT itemHeightChanged();
}

void QmlKaMenuSeparatorData::setLeftPadding(int padding) {
    if (QmlKaDescriptionUtils::assign(m_leftPadding, padding))
        Q_EMIT leftPaddingChanged();
}

void QmlKaMenuSeparatorData::setRightPadding(int padding) {
    if (QmlKaDescriptionUtils::assign(m_rightPadding, padding))
        Q_EMIT rightPaddingChanged();
}
