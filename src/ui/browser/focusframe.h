// Item views' delegate that shows the focus clearly: the current item of a list that has the
// focus gets a solid frame in the selection colour, where the style's own dotted frame is
// barely visible.
#pragma once

#include <QStyledItemDelegate>

namespace quovara {

class FocusFrameDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace quovara
