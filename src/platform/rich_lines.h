// A rich text broken into lines of one width, for a paper that prints it in pieces.
#pragma once

#include <QImage>
#include <QPointF>
#include <QString>
#include <QTextDocument>
#include <QTextLayout>

#include <memory>
#include <vector>

class QPainter;

// Lengths in twips. Lines count from 0; a range ends before `end`.
class RichLines {
public:
    // The text is copied with its fonts, sizes, colours, styles, alignments and tabs, in the sizes of paper.
    RichLines(const QTextDocument& text, double width);
    RichLines(const RichLines&) = delete;
    RichLines& operator=(const RichLines&) = delete;

    int count() const { return static_cast<int>(lines_.size()); }
    // The end of the lines from `first` on that have room in `height`; at least one line.
    int fitting(int first, double height) const;
    double height(int first, int end) const;
    // The letters of the lines, each line in one of its own.
    QString text(int first, int end) const;
    // With `at` as the top left of the first line; on a device of 1440 dots to the inch.
    void draw(QPainter& painter, QPointF at, int first, int end) const;

private:
    struct Line {
        QTextLine line;
        QPointF block;  // where its paragraph begins
        double top, bottom;
        QString text;
    };
    void break_lines();

    QImage device_;  // stands for the paper; outlives the document that is measured on it
    std::unique_ptr<QTextDocument> document_;
    std::vector<Line> lines_;
};
