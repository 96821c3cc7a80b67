// A new class comes in from a workbook, and one of its students has the photograph taken.
#include "walk.h"

#include <QFile>
#include <QListWidget>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int first_number = 90001;

class Newcomers {
public:
    explicit Newcomers(Clerk& clerk) : clerk_(clerk), kurvo_(clerk.kurvo()) {}

    void import_class();
    void open_camera();
    void take_photo();

private:
    Clerk& clerk_;
    Kurvo& kurvo_;
};

void Newcomers::import_class() {
    const QString file = clerk_.folder().filePath(u"yeni-sinif.csv"_s);
    QFile table(file);
    must(table.open(QIODevice::WriteOnly), u"the workbook cannot be written"_s);
    table.write(
        "Deniz;Yıldız;90001;12C;0532 111 22 33\nIrmak;Çağlayan;90002;12C;05321112234\n;Kaya;90003;12C;\n"
        "Umut;Işık;90001;12C;\n");
    table.close();
    clerk_.press(kurvo_.CommandDOSYADAN);
    clerk_.type(kurvo_.ONAME, file);
    int column = 0;
    for (const int box : {0, 1, 2, 3, 9})
        clerk_.type(kurvo_.bas[static_cast<std::size_t>(box)], QString::number(++column));
    clerk_.press(kurvo_.CommandAKTAR);
    QStringList lines;
    for (int i = 0; i < kurvo_.ListA->count(); ++i) lines += kurvo_.ListA->item(i)->text();
    must(lines == QStringList{u"3. satırda ad soyad yok"_s, u"4. satırda mükerrer numara"_s,
                              u"Okunan kayıt sayısı : 5"_s, u"Yazılan kayıt sayısı : 2"_s},
         lines.join(u"; "));
    QFile::remove(file);
}

void Newcomers::open_camera() {
    clerk_.type(kurvo_.LONO, QString::number(first_number), Qt::Key_Return);
    must(kurvo_.LADSOYAD->text() == u"DENİZ YILDIZ" || kurvo_.LADSOYAD->text().startsWith(u"DEN"),
         u"the imported student has no card"_s);
    must(kurvo_.Image1->pixmap(Qt::ReturnByValue).isNull(), u"the student has a photograph already"_s);
    clerk_.press(kurvo_.CommandFOTOac);
    must(QTest::qWaitFor([&] { return !kurvo_.Image1->pixmap(Qt::ReturnByValue).isNull(); }),
         u"the camera shows nothing"_s);
    must(!kurvo_.LONO->isEnabled(), u"the student can still be changed"_s);
}

void Newcomers::take_photo() {
    clerk_.press(kurvo_.CommandFOTOcek);
    must(kurvo_.CommandFOTOac->isEnabled() && kurvo_.LONO->isEnabled(), u"the camera stays open"_s);
    must(!kurvo_.Image1->pixmap(Qt::ReturnByValue).isNull(), u"the card has no photograph"_s);
}

}  // namespace

Walk newcomers_walk(Clerk& clerk) {
    const auto newcomers = std::make_shared<Newcomers>(clerk);
    return {
        {u"dosyadan-tasi"_s, {screens::large, screens::small}, [newcomers] { newcomers->import_class(); }},
        {u"kamera"_s, {screens::small}, [newcomers] { newcomers->open_camera(); }},
        {u"fotograf"_s, {screens::small}, [newcomers] { newcomers->take_photo(); }},
    };
}
