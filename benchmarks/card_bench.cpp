// A student's card with the open instalments, for two students in turn, so that every text changes each time.
#include "bare_form.h"
#include "bare_table.h"
#include "benches.h"
#include "platform/paths.h"
#include "raw_store.h"
#include "rich_student.h"
#include "running_program.h"

#include <QImageReader>
#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace bench {

namespace {

constexpr int instalments = 12;
constexpr int payments = 20;
constexpr RowCounts rows{instalments, payments, 100, 20};
constexpr int cards = 10;  // of each run

struct Pictured {
    double number;
    QString photo;
};

// Two students with a photograph.
std::array<Pictured, 2> two_students() {
    std::array<Pictured, 2> chosen;
    store::Database term = store::OpenDatabase(BigSchool::term_file);
    store::Recordset students = term.OpenRecordset("Ogrenci");
    std::size_t count = 0;
    store::scan_all(students, [&] {
        const QString photo = students["RESIM"].text().trimmed();
        if (!photo.isEmpty()) chosen[count++] = {students["ONO"].number(), photo};
        return count < chosen.size();
    });
    if (count < chosen.size()) throw std::runtime_error("the school has too few photographs");
    return chosen;
}

// Rows of a student in an ordinary table.
class BareRows {
public:
    BareRows(RawStatement statement, int columns)
        : statement_(std::move(statement)), table_(columns), columns_(columns) {}

    // `see` is shown each row while it is read.
    template <typename See>
    void show(double student, See see) {
        std::vector<std::string> texts;
        statement_.bind(1, student);
        while (statement_.step()) {
            see(statement_);
            for (int column = 0; column < columns_; ++column) texts.push_back(statement_.text(column));
        }
        statement_.reset();
        table_.set_rows(static_cast<int>(texts.size()) / columns_);
        auto text = texts.cbegin();
        for (int row = 0; row < table_.rows(); ++row)
            for (int column = 0; column < columns_; ++column) table_.set(row, column, *text++);
    }
    void show(double student) {
        show(student, [](const RawStatement&) {});
    }

private:
    RawStatement statement_;
    BareTable table_;
    const int columns_;
};

// Reads what the card and the panels behind it show and puts it into the same labels and ordinary tables.
class BareCard {
public:
    BareCard();
    void show(const Pictured& student);

private:
    QString text(int column) const { return QString::fromStdString(row_.text(column)); }
    void show_labels();
    void show_instalments(double student);
    void show_picture(const QString& photo);
    void show_names();

    BareForm form_;
    RawFile term_{BigSchool::term_file};
    RawStatement row_ = term_.prepare(
        "SELECT ADSOY, SINIF, KAYTAR, VATNO, TEL, VELI, VTEL, VGSM, ANNE, AEVTEL, AGSMTEL, BABA, BEVTEL, BGSMTEL, "
        "GELOKUL, OKULNO, ACK, GRUP, BOLUM, DIN, VELI, ADRES1, ADRES2, AILCE, AIL, AYYER, SAKLA, RESIM "
        "FROM Ogrenci WHERE ONO=?");
    RawStatement class_ = term_.prepare("SELECT ACK FROM Sinif WHERE SINIF=?");
    BareRows plan_{term_.prepare("SELECT VADE, TUTAR, ODENEN, ODSEK, ACK, CYER FROM Odeme INDEXED BY \"Odeme.OVX\" "
                                 "WHERE ONO=? ORDER BY VADE"),
                   6};
    BareRows payments_{term_.prepare("SELECT VADE, KASAFNO, TARIH, ODENEN FROM Tahsilat WHERE ONO=?"), 4};
    BareRows absences_{term_.prepare("SELECT TARIH, IZINLI, IZINSIZ, RAPORLU, DKOD, (SELECT ACK FROM Dmazeret m WHERE "
                                     "m.ONO=d.ONO AND m.TARIH=d.TARIH) FROM Devam d WHERE ONO=? ORDER BY TARIH, DKOD"),
                       6};
    BareRows study_absences_{
        term_.prepare("SELECT TARIH, IZINLI, IZINSIZ, RAPORLU, DKOD, (SELECT ACK FROM Emazeret m WHERE m.ONO=d.ONO AND "
                      "m.TARIH=d.TARIH) FROM EtudDevam d WHERE ONO=? ORDER BY TARIH, DKOD"),
        6};
    // In two panels.
    static constexpr const char* sessions =
        "SELECT GIRDI, TARIH, SAAT, KOD, SICIL, KONU FROM Etud WHERE ONO=? ORDER BY TARIH, SAAT";
    BareRows sessions_{term_.prepare(sessions), 6}, booked_{term_.prepare(sessions), 6};
};

BareCard::BareCard() {
    form_.show();
    QCoreApplication::processEvents();
}

void BareCard::show(const Pictured& student) {
    form_.LONO->setText(QString::number(student.number, 'f', 0));
    row_.bind(1, student.number).step();
    show_picture(student.photo);
    show_labels();
    row_.reset();
    show_instalments(student.number);
    for (BareRows* each : {&payments_, &absences_, &study_absences_, &sessions_, &booked_}) each->show(student.number);
    for (int panel = 0; panel < 2; ++panel) show_names();
}

// Lessons and teachers of the sessions stand in the other file, which is opened for each panel.
void BareCard::show_names() {
    RawFile reference(BigSchool::reference_file);
    RawStatement lesson = reference.prepare("SELECT TANIM FROM Ders WHERE KOD='01'");
    RawStatement teacher = reference.prepare("SELECT ADSOY FROM Ogretmen WHERE SICIL=101");
    for (RawStatement* name : {&lesson, &teacher})
        if (name->step()) keep(name->text(0));
}

void BareCard::show_labels() {
    class_.bind(1, row_.text(1)).step();
    form_.LSNF->setText(text(1) + QString::fromStdString(class_.text(0)));
    class_.reset();
    form_.LADSOYAD->setText(text(0));
    QLabel* const labels[] = {form_.LKAYTAR,  form_.LTCNO,   form_.LTEL,  form_.LVELI, form_.LVTEL,  form_.LVGSM,
                              form_.LANNE,    form_.LATEL,   form_.LAGSM, form_.LBABA, form_.LBTEL,  form_.LBGSM,
                              form_.LGELOKUL, form_.LOKULNO, form_.LACK,  form_.LGRUP, form_.LBOLUM, form_.LDIN};
    int column = 2;
    for (QLabel* label : labels) label->setText(text(column++));
    for (QLineEdit* box : {form_.fADSOY, form_.fADRES1, form_.fADRES2, form_.fILCE, form_.fIL})
        box->setText(text(column++));
    for (; column <= 27; ++column) keep(row_.text(column));
}

void BareCard::show_instalments(double student) {
    double amount = 0, paid = 0;
    plan_.show(student, [&](const RawStatement& instalment) {
        amount += instalment.number(1);
        paid += instalment.number(2);
    });
    form_.TTUTAR->setText(QString::number(amount));
    form_.TODENEN->setText(QString::number(paid));
    form_.TBORC->setText(QString::number(amount - paid));
}

void BareCard::show_picture(const QString& photo) {
    QImageReader reader(paths::native(photo));
    reader.setScaledSize(reader.size().scaled(form_.Image1->contentsRect().size(), Qt::KeepAspectRatio));
    form_.Image1->setPixmap(QPixmap::fromImage(reader.read()));
}

void press_enter(QWidget& box) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCoreApplication::sendEvent(&box, &press);
}

}  // namespace

void measure_card(Table& table, const BigSchool& school) {
    const std::string act = "ogrenci_goster, 12 instalments, 20 payments";
    if (!table.wants(act)) return;
    std::array<Pictured, 2> students = two_students();
    for (const Pictured& student : students) give_rows(student.number, rows);
    RunningProgram program(school);
    for (Pictured& student : students) student.photo = program->session().photoFolder + student.photo;
    Kurvo& form = program->form();
    BareCard bare;

    int shown = 0;
    const auto next = [&]() -> const Pictured& { return students[static_cast<std::size_t>(shown++ % 2)]; };
    const auto show_cards = [&] {
        for (int i = 0; i < cards; ++i) {
            form.LONO->setText(QString::number(next().number, 'f', 0));
            press_enter(*form.LONO);
        }
    };
    const auto show_bare_cards = [&] {
        for (int i = 0; i < cards; ++i) bare.show(next());
    };
    show_cards();
    if (form.FTahsil_Tablo2->rows() != instalments) throw std::runtime_error("the card does not show the plan");
    // What is painted afterwards is the same for both and is left out.
    const auto run = [](const std::function<void()>& work) {
        const Seconds taken = timed(work, cards);
        QCoreApplication::processEvents();
        return taken;
    };
    table.compare(
        act, 2, [&] { return run(show_cards); }, [&] { return run(show_bare_cards); });
}

}  // namespace bench
