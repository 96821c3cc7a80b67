// The 85 fields of a student's row and the controls of the record form that show them, as one table.
#pragma once

#include "forms/kurvo_yeni.h"

#include <QString>

#include <variant>
#include <vector>

enum class FieldKind {
    text,           // as it stands; an empty text is stored as one blank
    rich_text,      // stored as RTF of the box's text
    number,         // the number parser's value of the box's text
    date,           // YYYYMMDD of a date picker
    position,       // the place in a list, from 0
    position_text,  // the same, stored as text
    check,          // 0 or 1
    check_text,     // the same, stored as text
    exception,      // has a control and rules of its own (class group, fee, user ...)
    untouched       // has no control
};

// No control (monostate) for the fields that the form never shows.
using RecordControl = std::variant<std::monostate, QLineEdit * KurvoYeni::*, QComboBox * KurvoYeni::*,
                                   DatePicker * KurvoYeni::*, QCheckBox * KurvoYeni::*, QLabel * KurvoYeni::*>;

struct RecordField {
    const char* field;  // in table Ogrenci
    FieldKind kind;
    const char* control;  // the control's name; empty without one
    RecordControl member;
    QString caption;  // beside the control, to the blank
    int limit = 0;    // characters that may be typed; 0 without a limit
    unsigned traits = 0;

    enum Trait : unsigned {
        trims = 1,      // outer blanks are removed on entering a number and before saving
        moves = 2,      // taken over from another term
        watched = 4,    // its change publishes the student; the old value is its tooltip
        telephone = 8,  // blanks, points and commas do not count against the limit
    };
    bool has(Trait trait) const { return (traits & trait) != 0; }
};

// In the order in which a row is filled.
const std::vector<RecordField>& record_fields();
const RecordField& record_field(const char* field);

// The control itself; nullptr without one.
QWidget* control_of(const RecordField& field, const KurvoYeni& form);
template <typename Control>
Control* control_as(const RecordField& field, const KurvoYeni& form) {
    const auto* member = std::get_if<Control * KurvoYeni::*>(&field.member);
    return member == nullptr ? nullptr : form.**member;
}
