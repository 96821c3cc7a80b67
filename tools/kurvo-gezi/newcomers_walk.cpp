// A new class comes in from a workbook, and one of its students has the photograph taken.
#include "walk.h"

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
    clerk_.import_students(
        "Deniz;Yıldız;90001;12C;0532 111 22 33\nIrmak;Çağlayan;90002;12C;05321112234\n;Kaya;90003;12C;\n"
        "Umut;Işık;90001;12C;\n",
        {u"3. satırda ad soyad yok"_s, u"4. satırda mükerrer numara"_s, u"Okunan kayıt sayısı : 5"_s,
         u"Yazılan kayıt sayısı : 2"_s});
}

void Newcomers::open_camera() {
    clerk_.type(kurvo_.LONO, QString::number(first_number), Qt::Key_Return);
    must(kurvo_.LADSOYAD->text() == u"DENIZ YILDIZ", u"the imported student has no card"_s);
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
