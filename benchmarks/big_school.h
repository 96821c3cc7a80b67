// The school that everything is measured on: 20,000 students with 10 instalments and 100 absences each.
#pragma once

#include <QString>
#include <QTemporaryDir>

#include <vector>

namespace bench {

// Made once under the folder of the build and copied for each run of the program, which may then write as it likes.
// Sets KURVO_DRIVES and KURVO_PRINTER for as long as it lives.
class BigSchool {
public:
    // `build_folder` is native. A school of another number of students has plans, but few absences and no photographs.
    explicit BigSchool(const QString& build_folder, int students = usual_students);
    ~BigSchool();
    BigSchool(const BigSchool&) = delete;
    BigSchool& operator=(const BigSchool&) = delete;

    static constexpr int usual_students = 20'000;
    inline static const QString root = QStringLiteral("c:\\okul\\");
    inline static const QString term_file = QStringLiteral("c:\\okul\\data\\2026ogr.mdb");
    inline static const QString reference_file = QStringLiteral("c:\\okul\\data\\Bilgi.mdb");

    // The numbers of all students, in an order without order.
    const std::vector<double>& numbers() const { return numbers_; }
    // Writes what the launcher hands over before each start of the program.
    void hand_over() const;

private:
    QTemporaryDir drives_;
    std::vector<double> numbers_;
};

}  // namespace bench
