// A box for rich text that is stored as RTF.
#pragma once

#include <QTextEdit>

// What is pasted or dropped keeps only what rich_text stores, so that a clerk sees at once what will be left of a table
// or a picture, and not at the next reading.
class RichTextBox : public QTextEdit {
    Q_OBJECT

public:
    using QTextEdit::QTextEdit;

protected:
    void insertFromMimeData(const QMimeData* source) override;
};
