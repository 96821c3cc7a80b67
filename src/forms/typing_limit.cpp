#include "forms/typing_limit.h"

#include <algorithm>
#include <memory>

namespace typing_limit {

namespace {

qsizetype all_characters(const QString& text) {
    return text.size();
}

qsizetype telephone_characters(const QString& text) {
    return std::ranges::count_if(text, [](QChar c) { return c != u' ' && c != u'.' && c != u','; });
}

void limit_typing(QLineEdit* box, int limit, qsizetype (*count)(const QString&)) {
    const auto before = std::make_shared<qsizetype>(count(box->text()));
    QObject::connect(box, &QLineEdit::textEdited, box, [=](const QString& text) {
        if (count(text) <= std::max<qsizetype>(limit, *before)) return;
        box->backspace();  // the caret stands behind what was typed; this edits, and so comes here again
    });
    QObject::connect(box, &QLineEdit::textChanged, box, [=](const QString& text) {
        if (count(text) <= std::max<qsizetype>(limit, *before) || !box->isModified()) *before = count(text);
    });
}

}  // namespace

void set(QLineEdit* box, int limit) {
    limit_typing(box, limit, all_characters);
}
void set_telephone(QLineEdit* box, int limit) {
    limit_typing(box, limit, telephone_characters);
}

}  // namespace typing_limit
