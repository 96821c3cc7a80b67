// What stands behind a verb on the command line.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

struct OptionDef {
    QString name;   // without the two dashes
    QString value;  // what its value is, as the help shows it; empty: the option has none
    bool repeats = false;
};

// Throws std::invalid_argument: the command line is not as a verb wants it.
[[noreturn]] void wrong_use(const QString& words);

class Arguments {
public:
    // "--ad deger" and "--ad=deger" are the same. Throws std::invalid_argument, in Turkish, for an option that
    // is not in `options`, one given twice that does not repeat, a missing value, and any other number of
    // values without an option than `positionals`, of which those in brackets may be missing.
    Arguments(const QStringList& words, const std::vector<OptionDef>& options, const QStringList& positionals);

    QString positional(int index, const QString& fallback = {}) const { return positionals_.value(index, fallback); }
    bool has(const QString& option) const { return values_.contains(option); }
    QString value(const QString& option, const QString& fallback = {}) const;
    QStringList values(const QString& option) const { return values_.value(option); }

private:
    void take_option(const OptionDef& option, const QString& value);

    QStringList positionals_;
    QHash<QString, QStringList> values_;
};
