// Between a student's row and the controls of the record form: each field by the rule of its kind.
#pragma once

#include "forms/record_fields.h"
#include "store/record.h"

namespace record_controls {

// Shows what the row holds in the field's control. Fields of kind exception and untouched have rules of their own and
// are left to the caller. A position that the list does not have leaves the list without a choice.
void show(KurvoYeni& form, const RecordField& field, const store::Value& stored);

// Assigns what the control holds to the field of a row that is being edited; exception and untouched fields, and a
// list without a choice, leave the row's value.
void write(const KurvoYeni& form, const RecordField& field, store::Recordset& row);

// What a clerk reads in the control.
QString content(const KurvoYeni& form, const RecordField& field);

// Selects the first entry that begins with the whole of `value`, the first of all where none does.
void select_by_prefix(QComboBox& list, const QString& value);

// Takes the outer blanks off every text that has the trait.
void trim(KurvoYeni& form);
// Gives every such text box that is empty one blank, as the tables keep it.
void put_blanks(KurvoYeni& form);
// The state of a form without a student; ONO, SAKLA and USER are left.
void clear(KurvoYeni& form);

}  // namespace record_controls
