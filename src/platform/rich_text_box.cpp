#include "platform/rich_text_box.h"

#include "platform/rich_text.h"

#include <QMimeData>
#include <QTextDocumentFragment>

void RichTextBox::insertFromMimeData(const QMimeData* source) {
    if (!source->hasHtml()) return QTextEdit::insertFromMimeData(source);
    QTextDocument pasted, kept;
    pasted.setHtml(source->html());
    rich_text::load(rich_text::save(pasted), kept);
    textCursor().insertFragment(QTextDocumentFragment(&kept));
    ensureCursorVisible();
}
