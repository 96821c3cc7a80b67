#include "move_verb.h"

#include "console.h"
#include "moving.h"
#include "platform/paths.h"
#include "platform/refusal.h"
#include "school.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString required(const Arguments& arguments, const QString& option) {
    const QString value = arguments.value(option).trimmed();
    if (value.isEmpty()) wrong_use(u"--%1 gerekir."_s.arg(option));
    return value;
}

// The other workstations look for the file too: by its name alone where it lies beside the school's files.
QString shared_name(const QString& file, const QString& root) {
    const QFileInfo place(paths::native(file));
    const QString data = QFileInfo(paths::native(school::data_file(root, {}))).canonicalFilePath();
    return place.canonicalPath() == data ? place.fileName() : place.absoluteFilePath();
}

QString first_line(const QString& file) {
    QFile text(paths::native(file));
    if (!text.open(QIODevice::ReadOnly)) refuse(u"Parola dosyası okunamıyor: "_s + file);
    return QString::fromUtf8(text.readLine()).trimmed();
}

store::ServerPlace place_of(const Arguments& arguments, const QString& root) {
    store::ServerPlace place;
    for (const QString& host : required(arguments, u"sunucu"_s).split(u',', Qt::SkipEmptyParts)) {
        static const QRegularExpression form(u"^[^:\\s]+(:[1-9][0-9]{0,4})?$"_s);
        if (!form.match(host.trimmed()).hasMatch()) wrong_use(u"--sunucu böyle olamaz: "_s + host);
        place.hosts.append(host.trimmed());
    }
    place.database = required(arguments, u"veritabani"_s);
    place.user = required(arguments, u"kullanici"_s);
    place.tls = arguments.has(u"tls"_s) || arguments.has(u"sertifika"_s);
    if (arguments.has(u"sertifika"_s))
        place.certificate = QFileInfo(paths::native(arguments.value(u"sertifika"_s))).absoluteFilePath();
    if (const QString file = arguments.value(u"parola-dosyasi"_s); !file.isEmpty()) {
        place.password = first_line(file);
        place.password_file = shared_name(file, root);
    } else {
        place.password = console::secret(u"%1 kullanıcısının parolası: "_s.arg(place.user));
    }
    return place;
}

const moving::Told told{
    [](const QString& file, const QString& words) { console::say(u"%1 (%2)\n"_s.arg(file, words)); },
    [](const std::string& table, std::int64_t rows) {
        console::say(u"  %1 %2 kayıt\n"_s.arg(QString::fromStdString(table).leftJustified(10)).arg(rows));
    },
    [](const QString& file, const QString& words) {
        console::say(u"  karşılaştırıldı, aynı; %1 %2\n"_s.arg(file, words));
    }};

void to_server(const Arguments& arguments, const QString& root) {
    const QString front = arguments.value(u"onek"_s);
    if (!QRegularExpression(u"^[a-z0-9_]*$"_s).match(front).hasMatch()) wrong_use(u"--onek böyle olamaz: "_s + front);
    const store::ServerPlace place = place_of(arguments, root);
    const int moved = moving::to_server(root, place, front, arguments.has(u"uzerine"_s), told);
    console::say(moved > 0 ? u"%1 dosya sunucuya taşındı: %2\n"_s.arg(moved).arg(root)
                           : u"Okulun bütün dosyaları zaten sunucuda: %1\n"_s.arg(root));
    if (moved > 0 && place.password_file.isEmpty())
        console::say(u"Parola veri klasöründeki dosyalarda yazılıdır; klasörü okuyabilen herkes onu görür.\n"_s);
}

void to_files(const Arguments& arguments, const QString& root) {
    const int moved = moving::to_files(root, told);
    console::say(moved > 0 ? u"%1 dosya klasöre geri taşındı: %2\n"_s.arg(moved).arg(root)
                           : u"Okulun bütün dosyaları zaten klasörde: %1\n"_s.arg(root));
    if (arguments.has(u"sil"_s))
        console::say(u"Tabloları sunucudan silinen dosya: %1\n"_s.arg(moving::remove_left_tables(root)));
    else if (moved > 0)
        console::say(
            u"Sunucudaki tablolar kaldı, artık kimse onlara yazamaz; silmek için: kurvo-arac tasi %1 --geri --sil\n"_s
                .arg(root));
}

void move(const Arguments& arguments) {
    const QString root = school::folder(arguments.positional(0));
    const bool back = arguments.has(u"geri"_s);
    for (const char16_t* option :
         {u"sunucu", u"veritabani", u"kullanici", u"parola-dosyasi", u"onek", u"tls", u"sertifika", u"uzerine"})
        if (back && arguments.has(QString::fromUtf16(option)))
            wrong_use(u"--%1 ile --geri birlikte olmaz."_s.arg(QString::fromUtf16(option)));
    if (!back && arguments.has(u"sil"_s)) wrong_use(u"--sil yalnız --geri ile olur."_s);
    if (!school::exists(root)) refuse(u"Burada okul yok: "_s + root);
    back ? to_files(arguments, root) : to_server(arguments, root);
}

}  // namespace

Verb move_verb() {
    return {u"tasi"_s,
            u"KÖK"_s,
            u"Bir okulu veritabanı sunucusuna taşır ya da geri getirir."_s,
            uR"(  --sunucu AD[:KAPI],…    MariaDB sunucusu; kümede düğümler, denenecekleri sırayla; kapı verilmezse 3306
  --veritabani AD         sunucuda var olan veritabanı
  --kullanici AD          sunucunun kullanıcısı
  --parola-dosyasi YOL    ilk satırı parola olan dosya; verilmezse parola sorulur ve okulun dosyalarına yazılır
  --onek EK               tablo adlarının başına; aynı veritabanını kullanan okulları ayırır
  --tls                   bağlantı şifrelenir, sunucunun sertifikası sınanır
  --sertifika YOL         sunucunun sertifikasını onaylayan kurumun sertifikası; --tls yerine de geçer
  --uzerine               sunucuda aynı önekle duran tablolar silinir
  --geri                  dosyaları sunucudan klasöre geri getirir
  --sil                   --geri ile: geri gelmiş dosyaların sunucuda kalan tablolarını siler

Önce bütün iş istasyonlarında program kapatılır; bir dosyayı o sırada kullanan varsa taşınmaz. Her dosyanın bütün
kayıtları karşı tarafta karşılaştırılır, sonra dosyanın yerine geçilir: sunucuya giderken eskisi DOSYA.yerel, geri
gelirken sunucunun bilgisi DOSYA.sunucu adıyla kalır. Yarıda kesilen taşıma aynı komutla sürdürülür. c:\qlm\ iş
istasyonunundur, taşınmaz.)"_s,
            {{u"sunucu"_s, u"AD[:KAPI],…"_s},
             {u"veritabani"_s, u"AD"_s},
             {u"kullanici"_s, u"AD"_s},
             {u"parola-dosyasi"_s, u"YOL"_s},
             {u"onek"_s, u"EK"_s},
             {u"tls"_s, {}},
             {u"sertifika"_s, u"YOL"_s},
             {u"uzerine"_s, {}},
             {u"geri"_s, {}},
             {u"sil"_s, {}}},
            move};
}
