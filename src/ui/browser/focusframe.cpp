#include "focusframe.h"

#include <QPainter>

namespace quovara {

void FocusFrameDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!(option.state & QStyle::State_HasFocus))
        return;
    painter->save();
    painter->setPen(QPen(option.palette.color(QPalette::Highlight), 1));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

} // namespace quovara
