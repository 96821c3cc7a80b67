#include "big_school.h"

#include "launch.h"
#include "raw_store.h"
#include "sample.h"
#include "school.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <random>

namespace fs = std::filesystem;

namespace bench {

namespace {

constexpr std::uint64_t seed = 20'000;

void use_drives(const fs::path& folder) {
    qputenv("KURVO_DRIVES", QByteArray::fromStdString(folder.string()));
}

sample::Scale scale_of(int students) {
    const bool usual = students == BigSchool::usual_students;
    sample::Scale scale;
    scale.students = students;
    scale.instalments = 10;
    scale.absences = usual ? 100 : 4;
    scale.photos = usual ? 100 : 0;
    return scale;
}

// Gets its name at the end only, so that one that was cut off is not taken for whole.
void make(const fs::path& folder, const sample::Scale& scale) {
    std::fprintf(stderr, "making the school of %d students in %s ...\n", scale.students, folder.c_str());
    fs::path unfinished = folder;
    unfinished += ".unfinished";
    fs::remove_all(unfinished);
    fs::create_directories(unfinished);
    use_drives(unfinished);
    school::create(BigSchool::root, {school::default_term});
    sample::fill_reference(BigSchool::root);
    sample::fill_term(BigSchool::root, school::default_term, seed, scale);
    fs::rename(unfinished, folder);
}

std::vector<double> shuffled_numbers() {
    std::vector<double> numbers;
    RawFile term(BigSchool::term_file);
    RawStatement all = term.prepare("SELECT ONO FROM Ogrenci");
    while (all.step()) numbers.push_back(all.number(0));
    std::ranges::shuffle(numbers, std::mt19937(1));
    return numbers;
}

}  // namespace

BigSchool::BigSchool(const QString& build_folder, int students)
    : drives_(build_folder + QStringLiteral("/bench-run-XXXXXX")) {
    const std::string size = students == usual_students ? "" : "-" + std::to_string(students);
    const fs::path kept = fs::path(build_folder.toStdString()) / ("bench-school" + size);
    if (!fs::exists(kept)) make(kept, scale_of(students));
    const fs::path drives = drives_.path().toStdString();
    fs::copy(kept, drives, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    use_drives(drives);
    qputenv("KURVO_PRINTER", "pdf:" + QByteArray::fromStdString((drives / "papers").string()));
    numbers_ = shuffled_numbers();
}

BigSchool::~BigSchool() {
    qunsetenv("KURVO_DRIVES");
    qunsetenv("KURVO_PRINTER");
}

void BigSchool::hand_over() const {
    launch::prepare({school::version_of(root),
                     root,
                     QStringLiteral("ÖZEL IŞIK DERSHANESİ"),
                     school::default_term,
                     QStringLiteral("0"),
                     QStringLiteral("111111"),
                     sample::user_code,
                     school::photo_folder(root),
                     {},
                     {},
                     {},
                     {},
                     {}});
}

}  // namespace bench
