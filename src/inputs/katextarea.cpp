#include "katextarea_p.h"

#include "kacolortokenutils.h"
#include "kafocusstyle.h"
#include "kascrollbarutils.h"

#include <bzthemeutils.h>
#include <drawutils.h>

#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr int kRadius = 6;

BzColorSet resolve(int token, BzThemeUtils::AppThemeType type) {
    if (token < 0)
        return BzThemeUtils::transparentColourSet();
    return BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::Token(token)), type);
}

} // namespace

KaTextAreaLook::KaTextAreaLook(QTextEdit* area, const Tokens& tokens)
    : m_area(area)
    , m_tokens(tokens) {
    // The frame is ours: no style frame, and a viewport that lets the
    // frame's fill show through (the area leaves a margin for the border).
    area->setFrameShape(QFrame::NoFrame);
    area->viewport()->setAutoFillBackground(false);
    area->setAttribute(Qt::WA_Hover);
    area->setProperty("focusBorderRadius", double(kRadius));
    area->setProperty("focusMargin", 3);
    KaScrollbarUtils::applyScrollBarStyle(area, KaScrollbarEnum::Normal);
    apply();
}

void KaTextAreaLook::apply() {
    const BzThemeUtils::AppThemeType type = BzThemeUtils::getThemeTypeOfWidget(m_area);
    m_background = resolve(m_tokens.background, type);
    m_border = resolve(m_tokens.border, type);
    const BzColorSet text = resolve(m_tokens.text, type);
    const BzColorSet placeholder = resolve(m_tokens.placeholder, type);

    QPalette palette = m_area->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool disabled = group == QPalette::Disabled;
        palette.setColor(group, QPalette::Base, Qt::transparent);
        palette.setColor(group, QPalette::Text, disabled ? text.disabled() : text.normal());
        if (m_tokens.placeholder >= 0)
            palette.setColor(group, QPalette::PlaceholderText,
                             disabled ? placeholder.disabled() : placeholder.normal());
        if (m_tokens.link >= 0) {
            const BzColorSet link = resolve(m_tokens.link, type);
            palette.setColor(group, QPalette::Link, disabled ? link.disabled() : link.normal());
            palette.setColor(group, QPalette::LinkVisited, disabled ? link.disabled() : link.normal());
        }
    }
    m_area->setPalette(palette);
    if (m_tokens.link >= 0) {
        m_link = palette.color(QPalette::Active, QPalette::Link);
        recolourLinks();
    }
    m_area->update();
}

void KaTextAreaLook::recolourLinks() {
    if (m_recolouring || !m_link.isValid())
        return;
    // Ranges first: an edit, even an empty one, reports a change again.
    QTextDocument* document = m_area->document();
    QList<QPair<int, int>> ranges;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat format = fragment.charFormat();
            if (format.isAnchor() && format.foreground().color() != m_link)
                ranges.append({fragment.position(), fragment.position() + fragment.length()});
        }
    }
    if (ranges.isEmpty())
        return;
    m_recolouring = true;
    QTextCharFormat recoloured;
    recoloured.setForeground(m_link);
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (const auto& [from, to] : ranges) {
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(recoloured);
    }
    cursor.endEditBlock();
    m_recolouring = false;
}

void KaTextAreaLook::paintFrame() {
    QPainter painter(m_area);
    QStyleOptionFocusRect option;
    option.initFrom(m_area);
    const QStyle::State state = option.state;
    const QColor fill = m_background.colorFor(m_area->isReadOnly() ? (state & QStyle::State_Enabled) : state);
    const QColor line = m_border.colorFor(state & QStyle::State_Enabled);
    DrawUtils::drawRoundedRect(&painter, QRectF(m_area->rect()), kRadius, fill, line, 1);
    if (state & QStyle::State_HasFocus)
        KaFocusStyle::requestRing(m_area, &painter);
}
