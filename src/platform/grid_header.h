// The heading row of a GridView: told colours as they are, without the shading that a style gives a heading.
#pragma once

#include <QHeaderView>

class GridHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};
