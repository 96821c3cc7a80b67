#include "register/record_controls.h"

#include "platform/clock.h"
#include "platform/date_picker.h"
#include "platform/numbers.h"
#include "platform/rich_text.h"

namespace record_controls {

namespace {

const QDate no_date(2000, 1, 1);

void show_text(QLineEdit& box, const QString& text) {
    if (box.text() != text) box.setText(text);
}

void clear_list(QComboBox& list, bool chooses_first) {
    list.setCurrentIndex(chooses_first && list.count() > 0 ? 0 : -1);
    if (list.isEditable() && list.currentIndex() < 0) list.clearEditText();
}

void clear_exception(KurvoYeni& form, const RecordField& field) {
    if (auto* box = control_as<QLineEdit>(field, form)) box->clear();
    if (auto* list = control_as<QComboBox>(field, form))
        clear_list(*list, list != form.GELOKUL && list != form.ISKONTO);
}

}  // namespace

void show(KurvoYeni& form, const RecordField& field, const store::Value& stored) {
    switch (field.kind) {
        case FieldKind::text:
        case FieldKind::number:
            return show_text(*control_as<QLineEdit>(field, form), stored.text());
        case FieldKind::rich_text:
            return show_text(*control_as<QLineEdit>(field, form), rich_text::plain(stored.text()));
        case FieldKind::date:
            return control_as<DatePicker>(field, form)->set_key(stored.text());
        case FieldKind::position:
        case FieldKind::position_text:
            return control_as<QComboBox>(field, form)->setCurrentIndex(static_cast<int>(stored.whole_number()));
        case FieldKind::check:
        case FieldKind::check_text:
            return control_as<QCheckBox>(field, form)->setChecked(stored.whole_number() != 0);
        case FieldKind::exception:
        case FieldKind::untouched:
            return;
    }
}

void write(const KurvoYeni& form, const RecordField& field, store::Recordset& row) {
    const auto text = [&] { return control_as<QLineEdit>(field, form)->text(); };
    const auto place = [&] { return control_as<QComboBox>(field, form)->currentIndex(); };
    const auto checked = [&] { return control_as<QCheckBox>(field, form)->isChecked() ? 1 : 0; };
    switch (field.kind) {
        case FieldKind::text:
            row[field.field] = text();
            return;
        case FieldKind::rich_text:
            row[field.field] = rich_text::from_plain(text());
            return;
        case FieldKind::number:
            row[field.field] = numbers::val(text());
            return;
        case FieldKind::date:
            row[field.field] = control_as<DatePicker>(field, form)->key();
            return;
        case FieldKind::position:
            if (place() >= 0) row[field.field] = place();
            return;
        case FieldKind::position_text:
            if (place() >= 0) row[field.field] = QString::number(place());
            return;
        case FieldKind::check:
            row[field.field] = checked();
            return;
        case FieldKind::check_text:
            row[field.field] = QString::number(checked());
            return;
        case FieldKind::exception:
        case FieldKind::untouched:
            return;
    }
}

QString content(const KurvoYeni& form, const RecordField& field) {
    if (const auto* box = control_as<QLineEdit>(field, form)) return box->text();
    if (const auto* list = control_as<QComboBox>(field, form)) return list->currentText();
    if (const auto* date = control_as<DatePicker>(field, form)) return date->text();
    return {};
}

void select_by_prefix(QComboBox& list, const QString& value) {
    int place = 0;
    while (place < list.count() && !list.itemText(place).startsWith(value)) ++place;
    list.setCurrentIndex(place < list.count() ? place : 0);
}

void trim(KurvoYeni& form) {
    for (const RecordField& field : record_fields()) {
        if (!field.has(RecordField::trims)) continue;
        if (auto* box = control_as<QLineEdit>(field, form)) show_text(*box, box->text().trimmed());
        if (auto* list = control_as<QComboBox>(field, form)) list->setEditText(list->currentText().trimmed());
    }
}

void put_blanks(KurvoYeni& form) {
    for (const RecordField& field : record_fields()) {
        auto* box = control_as<QLineEdit>(field, form);
        if (box != nullptr && field.has(RecordField::trims) && box->text().isEmpty()) box->setText(QStringLiteral(" "));
    }
}

void clear(KurvoYeni& form) {
    for (const RecordField& field : record_fields()) {
        if (control_of(field, form) == form.ONO || control_of(field, form) == form.SAKLA) continue;
        switch (field.kind) {
            case FieldKind::text:
            case FieldKind::rich_text:
            case FieldKind::number:
                control_as<QLineEdit>(field, form)->clear();
                break;
            case FieldKind::date:
                control_as<DatePicker>(field, form)->setDate(no_date);
                break;
            case FieldKind::position:
            case FieldKind::position_text:
                clear_list(*control_as<QComboBox>(field, form), true);
                break;
            case FieldKind::check:
            case FieldKind::check_text:
                control_as<QCheckBox>(field, form)->setChecked(false);
                break;
            case FieldKind::exception:
                clear_exception(form, field);
                break;
            case FieldKind::untouched:
                break;
        }
    }
    form.KAYTAR->setDate(clock_source::today());
}

}  // namespace record_controls
