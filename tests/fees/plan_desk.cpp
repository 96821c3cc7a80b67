#include "plan_desk.h"

#include "fees/payment_forms.h"

namespace {

const QString term_file = QStringLiteral("c:\\okul\\data\\2026ogr.mdb");
constexpr int student = 1250;

}  // namespace

PlanDesk::Office::Office() {
    QDir().mkpath(drives.path(QStringLiteral("c/okul/data")));
    store::create_file(term_file, store::catalogue(store::FileKind::term));
}

PlanDesk::PlanDesk(const std::vector<Instalment>& instalments)
    : clock_([] { return QDateTime(QDate(2026, 11, 24), QTime(9, 30)); }),
      plan(form, session,
           {[this] { return student_stored; },
            [this] {
                rows_when_stored = rows();
                student_stored = true;
            }}) {
    for (const Instalment& row : instalments) instalment(student, row);
    for (const int neighbour : {1249, 1251}) instalment(neighbour, {QStringLiteral("20261001"), 77});
    session.dataRoot = QStringLiteral("c:\\okul\\");
    session.termCode = QStringLiteral("2026");
    session.termDb = store::OpenDatabase(term_file);
    form.ODSEK->addItems(payment_forms());
    form.ONO->setText(QString::number(student));
    form.ADSOY->setText(QStringLiteral("AYŞE"));
    form.KTUTAR->setText(QStringLiteral("10.000"));
    form.resize(1366, 768);
    form.show();
    if (!QTest::qWaitForWindowActive(&form)) qFatal("the form does not come up");
    plan.taksit_listele();
}

void PlanDesk::instalment(int number, const Instalment& row) {
    store::Database term = store::OpenDatabase(term_file);
    store::Recordset odeme = term.OpenRecordset("Odeme");
    odeme.AddNew();
    odeme["ONO"] = number;
    odeme["VADE"] = row.vade;
    odeme["TUTAR"] = row.tutar;
    odeme["ODENEN"] = row.odenen;
    odeme["ACK"] = "elden";
    odeme["ODSEK"] = row.odsek;
    odeme["CYER"] = " ";
    odeme.Update();
}

QStringList PlanDesk::rows() const {
    store::Database term = store::OpenDatabase(term_file);
    store::Recordset odeme = term.OpenRecordset("Odeme");
    QStringList all;
    store::scan_prefix(odeme, {student}, [&] {
        all << odeme["VADE"].text() + u' ' + odeme["TUTAR"].text() + u'/' + odeme["ODENEN"].text();
    });
    return all;
}

QString PlanDesk::row(const QString& vade, std::string_view field) const {
    store::Database term = store::OpenDatabase(term_file);
    store::Recordset odeme = term.OpenRecordset("Odeme");
    odeme.Seek("=", {student, vade});
    return odeme[field].text();
}

void PlanDesk::enter(const QString& vade, const QString& amount) {
    form.VADE->set_key(vade);
    form.TUTAR->setFocus();
    form.TUTAR->clear();
    QTest::keyClicks(form.TUTAR, amount);
}
