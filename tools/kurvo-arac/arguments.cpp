#include "arguments.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

void wrong_use(const QString& words) {
    throw std::invalid_argument(words.toStdString());
}

namespace {

const OptionDef& find_option(const std::vector<OptionDef>& options, const QString& name) {
    const auto found = std::find_if(options.begin(), options.end(), [&](const auto& one) { return one.name == name; });
    if (found == options.end()) wrong_use(u"Böyle bir seçenek yok: --"_s + name);
    return *found;
}

}  // namespace

Arguments::Arguments(const QStringList& words, const std::vector<OptionDef>& options, const QStringList& positionals) {
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (!words[i].startsWith(u"--"_s)) {
            positionals_.append(words[i]);
            continue;
        }
        const qsizetype equals = words[i].indexOf(u'=');
        const OptionDef& option = find_option(options, words[i].sliced(2, (equals < 0 ? words[i].size() : equals) - 2));
        if (option.value.isEmpty()) {
            if (equals >= 0) wrong_use(u"Bu seçenek değer almaz: --"_s + option.name);
            take_option(option, {});
        } else if (equals >= 0) {
            take_option(option, words[i].sliced(equals + 1));
        } else {
            if (i + 1 == words.size()) wrong_use(u"Seçeneğin değeri eksik: --"_s + option.name);
            take_option(option, words[++i]);
        }
    }
    const auto may_be_missing =
        std::ranges::count_if(positionals, [](const auto& one) { return one.startsWith(u'['); });
    if (positionals_.size() < positionals.size() - may_be_missing) wrong_use(u"Eksik değer var."_s);
    if (positionals_.size() > positionals.size()) wrong_use(u"Fazla değer: "_s + positionals_.at(positionals.size()));
}

QString Arguments::value(const QString& option, const QString& fallback) const {
    return has(option) ? values_.value(option).first() : fallback;
}

void Arguments::take_option(const OptionDef& option, const QString& value) {
    QStringList& values = values_[option.name];
    if (!values.isEmpty() && !option.repeats) wrong_use(u"Seçenek iki kez verildi: --"_s + option.name);
    values.append(value);
}
