// Accessible names and tooltips that follow from the captions of a form.
#pragma once

class QWidget;

namespace captions {

// A control takes the caption of the label whose buddy it is, or which is named caption_ and the control's name, as
// its accessible name, where it has none of its own.
void name_fields(QWidget* form);

// The tooltip of a button names the key of its mnemonic, "Alt+" and the letter behind the "&".
void tell_shortcuts(QWidget* form);

}  // namespace captions
