// The verbs of kurvo-arac.
#pragma once

#include "arguments.h"

#include <QString>

#include <functional>
#include <vector>

struct Verb {
    QString name;
    QString positionals;  // as the help shows them, separated by blanks
    QString summary;      // one line
    QString help;         // what --help says beyond summary and options
    std::vector<OptionDef> options;
    // Throws std::invalid_argument for wrong use, anything else for a refusal.
    std::function<void(const Arguments&)> run;
};

const std::vector<Verb>& verbs();

// The root of the school that a verb works on, with one backslash at its end, and the option that tells it.
inline const OptionDef root_option{QStringLiteral("kok"), QStringLiteral("KÖK")};
QString root_of(const Arguments& arguments);

// "kur [--kok KÖK] [--donem KOD]…": a verb with what may stand behind it.
QString usage_of(const Verb& verb);
