// The payment forms of an instalment: the words that the number in ODSEK stands for.
#pragma once

#include "store/value.h"

#include <QString>
#include <QStringList>

// In the order of the numbers, from 0.
const QStringList& payment_forms();

// The word of a stored ODSEK; empty for Null and for any number without a word.
QString payment_form(const store::Value& odsek);
