#include "platform/rich_lines.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>

namespace {

constexpr double dots_a_meter = 1440 / 0.0254;

// No more than its resolution matters.
QImage paper_like() {
    QImage device(1, 1, QImage::Format_RGB32);
    device.setDotsPerMeterX(qRound(dots_a_meter));
    device.setDotsPerMeterY(qRound(dots_a_meter));
    return device;
}

}  // namespace

RichLines::RichLines(const QTextDocument& text, double width) : device_(paper_like()), document_(text.clone()) {
    document_->setDocumentMargin(0);
    document_->setUseDesignMetrics(true);
    document_->documentLayout()->setPaintDevice(&device_);
    document_->setTextWidth(width);
    break_lines();
}

void RichLines::break_lines() {
    const QAbstractTextDocumentLayout& layout = *document_->documentLayout();
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next()) {
        layout.blockBoundingRect(block);  // lays out as far as here
        const QTextLayout& paragraph = *block.layout();
        const QString text = block.text();
        for (int i = 0; i < paragraph.lineCount(); ++i) {
            const QTextLine line = paragraph.lineAt(i);
            const double top = paragraph.position().y() + line.y();
            lines_.push_back({line, paragraph.position(), top, top + line.height(),
                              text.mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator)});
        }
    }
}

int RichLines::fitting(int first, double height) const {
    int end = first + 1;
    while (end < count() && this->height(first, end + 1) <= height) ++end;
    return end;
}

double RichLines::height(int first, int end) const {
    return lines_[static_cast<std::size_t>(end) - 1].bottom - lines_[static_cast<std::size_t>(first)].top;
}

QString RichLines::text(int first, int end) const {
    QStringList texts;
    for (int i = first; i < end; ++i) texts << lines_[static_cast<std::size_t>(i)].text;
    return texts.join(u'\n');
}

void RichLines::draw(QPainter& painter, QPointF at, int first, int end) const {
    const double top = lines_[static_cast<std::size_t>(first)].top;
    painter.save();
    painter.setPen(Qt::black);
    for (int i = first; i < end; ++i) {
        const Line& line = lines_[static_cast<std::size_t>(i)];
        line.line.draw(&painter, at + line.block - QPointF(0, top));
    }
    painter.restore();
}
