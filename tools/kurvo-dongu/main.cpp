// A workstation that does one act over and over, without a person and without pictures:
//
//   kurvo-dongu post|save|renumber|import NUMBER AMOUNT TIMES SPEED BEGINNING
//
// NUMBER is the first student, AMOUNT what is paid or how many rows are imported, SPEED that of its clock, which stood
// at 9 o'clock at BEGINNING (ms of the machine's clock); 1 is the machine's own. It says "ready", goes on at a line
// from the standard input, and says "done" behind each act with what was told.
#include "platform/clock.h"
#include "platform/date_picker.h"
#include "platform/paths.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "register/program.h"

#include <QApplication>
#include <QFile>
#include <QListWidget>
#include <QTest>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <iostream>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

class Clerk {
public:
    Clerk(int number, int amount) : number_(number), amount_(amount) {
        program_.start();
        if (!QTest::qWaitForWindowActive(&kurvo())) qFatal("the form does not come up");
    }

    // Two more dates than today's, so that three collections find room in each second.
    void post(int time) {
        kurvo().LONO->setText(QString::number(number_));
        QTest::keyClick(kurvo().LONO, Qt::Key_Return);
        kurvo().CommandTAHSILAT->click();
        kurvo().ODENEN->setFocus();
        kurvo().ODENEN->setText(QString::number(amount_));
        kurvo().CommandTAHSIL->click();
        kurvo().FTahsil_TARIH->setDate(clock_source::today().addDays(-(time % 3)));
        kurvo().CommandOK->click();
    }

    // Each student twice, as a new one and again; the guardian is the number of the act.
    void save(int time) {
        KurvoYeni& form = record_form_on({});
        form.ONO->setText(QString::number(number_ + time / 2));
        form.ADSOY->setFocus();
        form.ADSOY->setText(u"AYŞE NUR"_s);
        form.VELI->setText(QString::number(time));
        form.GELOKUL->setEditText(u"OKUL %1"_s.arg(time / 2));
        form.CommandKAYDET->click();
    }

    // To the next number and back.
    void renumber(int) {
        store::Recordset& students = program_.session().studentTable;
        students.Seek("=", {number_});
        const int from = students.NoMatch() ? number_ + 1 : number_;
        KurvoYeni& form = record_form_on(QString::number(from));
        form.CommandNODGS->click();
        form.YENINO->setText(QString::number(from == number_ ? number_ + 1 : number_));
        form.CommandNODEGISTIR->click();
    }

    // Of each student in a class of its own.
    void import(int time) {
        QFile file(paths::native(list_));
        if (!file.open(QIODevice::WriteOnly)) qFatal("the list cannot be written");
        for (int row = 0; row < amount_; ++row)
            file.write("ece;su;%1;%1\n"_ba.replace("%1", QByteArray::number(number_ + time * amount_ + row)));
        file.close();
        kurvo().CommandDOSYADAN->click();
        kurvo().ONAME->setText(list_);
        for (std::size_t box = 0; box < 4; ++box) kurvo().bas[box]->setText(QString::number(box + 1));
        kurvo().CommandAKTAR->click();
    }

    Kurvo& kurvo() { return program_.form(); }

private:
    KurvoYeni& record_form_on(const QString& student) {
        if (program_.record_form() == nullptr) {
            kurvo().LONO->setText(student);
            kurvo().CommandYENI->click();
            // A window counts as active with the one behind it; the focus comes with the application's word only.
            if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == program_.record_form(); }))
                qFatal("the record form does not come up");
        }
        return *program_.record_form();
    }

    const QString list_ = u"c:\\okul\\liste.csv"_s;
    const int number_, amount_;
    Program program_;
};

std::function<QDateTime()> clock_of(qint64 speed, qint64 beginning) {
    if (speed == 1) return [] { return QDateTime::currentDateTime(); };
    return [=] {
        const QDateTime nine(QDate(2026, 11, 24), QTime(9, 0));
        return nine.addMSecs(speed * (QDateTime::currentMSecsSinceEpoch() - beginning));
    };
}

// A file without leave to write is one for root, too.
void obey_permissions() {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct allowed[2]{};
    syscall(SYS_capget, &header, allowed);
    allowed[0].effective &= ~(1u << CAP_DAC_OVERRIDE);
    syscall(SYS_capset, &header, allowed);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    obey_permissions();
    const clock_source::Override clock(clock_of(words[5].toLongLong(), words[6].toLongLong()));
    prompt::Script prompts;  // a box would wait for a person
    std::optional<Clerk> clerk;
    fatal::guard([&] { clerk.emplace(words[2].toInt(), words[3].toInt()); });
    const QMap<QString, void (Clerk::*)(int)> acts{
        {"post", &Clerk::post}, {"save", &Clerk::save}, {"renumber", &Clerk::renumber}, {"import", &Clerk::import}};
    signal(SIGXFSZ, SIG_IGN);  // a file beyond its limit is a full disk
    std::cout << "ready" << std::endl;
    std::string word;
    std::getline(std::cin, word);
    for (int time = 0; time < words[4].toInt(); ++time) {
        (*clerk.*acts[words[1]])(time);
        QStringList told = prompts.seen();
        for (int row = 0; row < clerk->kurvo().ListA->count(); ++row) told << clerk->kurvo().ListA->item(row)->text();
        std::cout << "done " << told.join("; ").toStdString() << std::endl;
    }
    clerk->kurvo().close();
    return 0;
}
