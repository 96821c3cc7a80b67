#include "forms/captions.h"

#include "platform/turkish.h"

#include <QAbstractButton>
#include <QLabel>

namespace captions {

namespace {

const QString caption_prefix = QStringLiteral("caption_");

QWidget* captioned(const QWidget& form, const QLabel& caption) {
    if (caption.buddy() != nullptr) return caption.buddy();
    return form.findChild<QWidget*>(caption.objectName().mid(caption_prefix.size()));
}

}  // namespace

void name_fields(QWidget* form) {
    for (const QLabel* caption : form->findChildren<QLabel*>()) {
        if (!caption->objectName().startsWith(caption_prefix)) continue;
        QWidget* field = captioned(*form, *caption);
        if (field != nullptr && field->accessibleName().isEmpty()) field->setAccessibleName(caption->text().trimmed());
    }
}

void tell_shortcuts(QWidget* form) {
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
        const qsizetype mark = button->text().indexOf(u'&');
        if (mark < 0 || !button->toolTip().isEmpty()) continue;
        button->setToolTip(QStringLiteral("Alt+") + turkish::capital(button->text().mid(mark + 1, 1)));
    }
}

}  // namespace captions
