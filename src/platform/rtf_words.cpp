#include "platform/rtf_words.h"

#include "platform/rtf_reader.h"

#include <algorithm>
#include <iterator>

namespace rtf {

namespace {

constexpr int argument(Alignment alignment) {
    return static_cast<int>(alignment);
}

// Sorted by name. What is not here and is no destination does no harm when it is passed over; a destination without a
// star must be here, else its inside would be read as text.
constexpr KnownWord words[] = {
    {"aftncn", Action::skipped_destination},
    {"aftnsep", Action::skipped_destination},
    {"aftnsepc", Action::skipped_destination},
    {"annotation", Action::skipped_destination},
    {"ansicpg", Action::document_code_page},
    {"atnauthor", Action::skipped_destination},
    {"atnid", Action::skipped_destination},
    {"author", Action::skipped_destination},
    {"b", Action::bold},
    {"bin", Action::binary},
    {"bkmkend", Action::skipped_destination},
    {"bkmkstart", Action::skipped_destination},
    {"blue", Action::blue},
    {"bullet", Action::letter, 0x2022},
    {"cb", Action::background},
    {"cell", Action::letter, u'\t'},
    {"cf", Action::color},
    {"chcbpat", Action::background},
    {"colortbl", Action::color_table},
    {"comment", Action::skipped_destination},
    {"datafield", Action::skipped_destination},
    {"datastore", Action::skipped_destination},
    {"deff", Action::default_font},
    {"do", Action::skipped_destination},
    {"emdash", Action::letter, 0x2014},
    {"emspace", Action::letter, 0x2003},
    {"endash", Action::letter, 0x2013},
    {"enspace", Action::letter, 0x2002},
    {"f", Action::font},
    {"fcharset", Action::font_charset},
    {"filetbl", Action::skipped_destination},
    {"fldinst", Action::skipped_destination},
    {"fonttbl", Action::font_table},
    {"footer", Action::skipped_destination},
    {"footerf", Action::skipped_destination},
    {"footerl", Action::skipped_destination},
    {"footerr", Action::skipped_destination},
    {"formfield", Action::skipped_destination},
    {"fs", Action::font_size},
    {"ftncn", Action::skipped_destination},
    {"ftnsep", Action::skipped_destination},
    {"ftnsepc", Action::skipped_destination},
    {"generator", Action::skipped_destination},
    {"green", Action::green},
    {"header", Action::skipped_destination},
    {"headerf", Action::skipped_destination},
    {"headerl", Action::skipped_destination},
    {"headerr", Action::skipped_destination},
    {"highlight", Action::background},
    {"i", Action::italic},
    {"info", Action::skipped_destination},
    {"latentstyles", Action::skipped_destination},
    {"ldblquote", Action::letter, 0x201C},
    {"line", Action::letter, 0x2028},
    {"listoverridetable", Action::skipped_destination},
    {"listtable", Action::skipped_destination},
    {"lquote", Action::letter, 0x2018},
    {"mac", Action::fixed_code_page, 10000},
    {"nestcell", Action::letter, u'\t'},
    {"nestrow", Action::paragraph},
    {"nonshppict", Action::skipped_destination},
    {"nosupersub", Action::script_end},
    {"objdata", Action::skipped_destination},
    {"page", Action::paragraph},
    {"par", Action::paragraph},
    {"pard", Action::plain_paragraph},
    {"pc", Action::fixed_code_page, 437},
    {"pca", Action::fixed_code_page, 850},
    {"pict", Action::skipped_destination},
    {"plain", Action::plain_style},
    {"pntxta", Action::skipped_destination},
    {"pntxtb", Action::skipped_destination},
    {"private1", Action::skipped_destination},
    {"qc", Action::align, argument(Alignment::center)},
    {"qj", Action::align, argument(Alignment::justify)},
    {"ql", Action::align, argument(Alignment::left)},
    {"qmspace", Action::letter, 0x2005},
    {"qr", Action::align, argument(Alignment::right)},
    {"rdblquote", Action::letter, 0x201D},
    {"red", Action::red},
    {"revtbl", Action::skipped_destination},
    {"row", Action::paragraph},
    {"rquote", Action::letter, 0x2019},
    {"rsidtbl", Action::skipped_destination},
    {"rxe", Action::skipped_destination},
    {"sect", Action::paragraph},
    {"shprslt", Action::skipped_destination},
    {"sp", Action::skipped_destination},
    {"strike", Action::strike},
    {"striked", Action::strike},
    {"stylesheet", Action::skipped_destination},
    {"sub", Action::subscript},
    {"super", Action::superscript},
    {"tab", Action::letter, u'\t'},
    {"tc", Action::skipped_destination},
    {"tcn", Action::skipped_destination},
    {"template", Action::skipped_destination},
    {"themedata", Action::skipped_destination},
    {"title", Action::skipped_destination},
    {"txe", Action::skipped_destination},
    {"u", Action::unicode},
    {"uc", Action::fallback_length},
    {"ul", Action::underline},
    {"uld", Action::underline},
    {"uldash", Action::underline},
    {"uldashd", Action::underline},
    {"uldashdd", Action::underline},
    {"uldb", Action::underline},
    {"ulhwave", Action::underline},
    {"ulldash", Action::underline},
    {"ulnone", Action::underline_end},
    {"ulth", Action::underline},
    {"ulthd", Action::underline},
    {"ulthdash", Action::underline},
    {"ulthdashd", Action::underline},
    {"ulthdashdd", Action::underline},
    {"ulthldash", Action::underline},
    {"ululdbwave", Action::underline},
    {"ulw", Action::underline},
    {"ulwave", Action::underline},
    {"v", Action::hidden},
    {"xe", Action::skipped_destination},
    {"xmlnstbl", Action::skipped_destination},
};

constexpr bool by_name(const KnownWord& left, const KnownWord& right) {
    return left.name < right.name;
}
static_assert(std::ranges::is_sorted(words, by_name));
constexpr KnownWord no_word;

}  // namespace

const KnownWord& find_word(std::string_view name) {
    const auto found = std::lower_bound(std::begin(words), std::end(words), KnownWord{name}, by_name);
    return found != std::end(words) && found->name == name ? *found : no_word;
}

}  // namespace rtf
