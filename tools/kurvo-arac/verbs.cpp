#include "verbs.h"

#include "console.h"
#include "launch.h"
#include "sample.h"
#include "school.h"
#include "table_copy.h"
#include "upkeep_verbs.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

template <typename Number>
Number whole_number(const Arguments& arguments, const QString& option, const QString& fallback) {
    const QString text = arguments.value(option, fallback);
    bool fine = false;
    const qulonglong number = text.toULongLong(&fine);
    if (!fine || number > static_cast<qulonglong>(std::numeric_limits<Number>::max()))
        wrong_use(u"--%1 bir tam sayı ister: %2"_s.arg(option, text));
    return static_cast<Number>(number);
}

void check(const QString& option, const QString& value, const QString& pattern) {
    if (!QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(value).hasMatch())
        wrong_use(u"--%1 böyle olamaz: %2"_s.arg(option, value));
}

void fill_sample(const QString& root, const QStringList& terms, int students, std::uint64_t seed, bool new_school) {
    sample::Scale scale;
    scale.students = students;
    if (new_school) sample::fill_reference(root);
    for (const QString& term : terms) sample::fill_term(root, term, seed, scale);
}

void set_up(const Arguments& arguments) {
    const QString root = root_of(arguments);
    const bool named = arguments.has(u"donem"_s);
    const QStringList terms = named ? arguments.values(u"donem"_s) : QStringList(school::default_term);
    const int students = whole_number<int>(arguments, u"ornek"_s, u"0"_s);
    const auto seed = whole_number<std::uint64_t>(arguments, u"tohum"_s, u"1"_s);
    const bool adding = named && school::exists(root);
    adding ? school::add_terms(root, terms) : school::create(root, terms);
    if (students > 0) {
        try {
            fill_sample(root, terms, students, seed, !adding);
        } catch (...) {
            school::remove(adding ? school::term_files_of(root, terms) : school::files_of(root, terms));
            throw;
        }
    }
    console::say((adding ? u"Dönem eklendi: %1\n"_s : u"Okul kuruldu: %1\n"_s).arg(root));
}

void user(const Arguments& arguments) {
    school::set_user(root_of(arguments), arguments.positional(0), arguments.value(u"secenek"_s, u"1011"_s));
}

void take_remote(const Arguments& arguments, launch::HandOver& values) {
    if (!arguments.has(u"uzak"_s)) return;
    const QStringList items = arguments.value(u"uzak"_s).split(u',');
    if (items.size() != 5) wrong_use(u"--uzak virgülle ayrılmış beş değer ister."_s);
    values.remote_host = items[0];
    values.remote_database = items[1];
    values.remote_user = items[2];
    values.remote_password = items[3];
    values.remote_key = items[4];
}

QString newest_term(const QString& root) {
    const QStringList terms = school::terms_of(root);
    return terms.isEmpty() ? school::default_term : terms.last();
}

void start(const Arguments& arguments) {
    launch::HandOver values;
    values.root = root_of(arguments);
    values.term = arguments.has(u"donem"_s) ? arguments.value(u"donem"_s) : newest_term(values.root);
    values.user = arguments.value(u"kullanici"_s, sample::user_code);
    values.rights = arguments.value(u"haklar"_s, u"111111"_s);
    values.hide_archived = arguments.value(u"gizle"_s, u"0"_s);
    values.school = arguments.value(u"okul"_s, u"ÖZEL KURVO DERSHANESİ"_s);
    values.photos = school::folder(arguments.value(u"foto"_s, school::photo_folder(values.root)));
    take_remote(arguments, values);
    check(u"haklar"_s, values.rights, u"[01]{6}"_s);
    check(u"gizle"_s, values.hide_archived, u"[01]"_s);
    values.version = arguments.has(u"surum"_s) ? arguments.value(u"surum"_s) : school::version_of(values.root);
    launch::prepare(values);
    if (!arguments.has(u"yalniz-dosya"_s)) launch::start(QCoreApplication::applicationDirPath() + u"/kurvo"_s);
}

void list_tables(const Arguments& arguments) {
    console::say(table_copy::overview(arguments.positional(0)));
}

void dump_table(const Arguments& arguments) {
    console::plain_bytes(stdout);
    table_copy::dump(arguments.positional(0), arguments.positional(1), arguments.value(u"sira"_s),
                     [](const QByteArray& piece) { console::say(piece); });
}

void load_table(const Arguments& arguments) {
    const int rows = table_copy::load(arguments.positional(0), arguments.positional(1), console::standard_input(),
                                      arguments.has(u"bosalt"_s));
    console::say(u"%1 kayıt eklendi.\n"_s.arg(rows));
}

std::vector<Verb> daily_verbs() {
    return {{u"kur"_s,
             {},
             u"Bir okulun bütün dosyalarını yaratır."_s,
             uR"(  --kok KÖK      veri kökü; verilmezse c:\okul\
  --donem KOD    dönem; birkaç kez verilebilir, verilmezse 2026
  --ornek N      N öğrencilik örnek bir okul doldurur
  --tohum S      örneğin tohumu (tam sayı, verilmezse 1): aynı tohum aynı okulu verir

Kökün altında data\Bilgi.mdb, data\Dsys.mdb, data\kbase.mdb ve her dönem için data\KODogr.mdb, iş istasyonunda
c:\qlm\Psys.mdb yaratılır. Okulun var olan bir dosyasına dokunulmaz: dosya söylenir ve hiçbir şey yapılmaz.
Kökte okul varsa ve --donem verilmişse yalnız o dönemler eklenir. c:\qlm\Psys.mdb okulun değil iş istasyonunundur;
varsa olduğu gibi kalır.)"_s,
             {root_option, {u"donem"_s, u"KOD"_s, true}, {u"ornek"_s, u"N"_s}, {u"tohum"_s, u"S"_s}},
             set_up},
            {u"kullanici"_s,
             u"KOD"_s,
             u"Bir kullanıcı ekler ya da seçeneklerini değiştirir."_s,
             uR"(  --kok KÖK      veri kökü; verilmezse c:\okul\
  --secenek XXXX seçenek karakterleri; verilmezse 1011

  1. karakter 1  tahsilat hep bugünün tarihiyle yapılır
  3. karakter 1  adlar büyük harfle yazılır
  4. karakter    0: silme ve ayrılış kapalı; 1'den başka: kayıtlı öğrencinin bedeli ve planı kilitli)"_s,
             {root_option, {u"secenek"_s, u"XXXX"_s}},
             user},
            {u"baslat"_s,
             {},
             u"Devir dosyasını yazar ve Kurvo'yu başlatır."_s,
             uR"(  --kok KÖK         veri kökü; verilmezse c:\okul\
  --donem KOD       dönem; verilmezse kökteki en yeni dönem
  --kullanici KOD   kullanıcı; verilmezse MEMUR
  --haklar 111111   düğmeler sırasıyla: kayıt, tahsilat, devamsızlık, etüd, not, toplu bilgi
  --gizle 0|1       1: saklanan öğrenciler listede görünmez; verilmezse 0
  --surum X.Y       sürüm; verilmezse data\Dsys.mdb içindeki
  --okul AD         kurumun adı
  --foto YOL        fotoğraf klasörü; verilmezse kökün altında foto\
  --uzak SUNUCU,VERITABANI,KULLANICI,PAROLA,ANAHTAR
                    uzak öğrenci dizini; verilmezse yayın yok
  --yalniz-dosya    yalnız c:\qlm\log.txt ile prg kaydı yazılır, program başlatılmaz)"_s,
             {root_option,
              {u"donem"_s, u"KOD"_s},
              {u"kullanici"_s, u"KOD"_s},
              {u"haklar"_s, u"111111"_s},
              {u"gizle"_s, u"0|1"_s},
              {u"surum"_s, u"X.Y"_s},
              {u"okul"_s, u"AD"_s},
              {u"foto"_s, u"YOL"_s},
              {u"uzak"_s, u"SUNUCU,VERITABANI,KULLANICI,PAROLA,ANAHTAR"_s},
              {u"yalniz-dosya"_s, {}}},
             start},
            {u"tablolar"_s,
             u"DOSYA"_s,
             u"Bir dosyanın tablolarını, alanlarını ve dizinlerini listeler."_s,
             uR"(DOSYA bu makinenin bir yolu ya da c:\okul\data\Bilgi.mdb gibi bir sürücü yoludur.)"_s,
             {},
             list_tables},
            {u"dok"_s,
             u"DOSYA TABLO"_s,
             u"Bir tabloyu CSV olarak standart çıktıya döker."_s,
             uR"(  --sira INDEKS  kayıtlar bu dizinin sırasıyla; verilmezse tablonun ana sırası

UTF-8, RFC 4180; ilk satır alan adlarıdır. Null boş alan, boş metin "" olarak, sayılar noktalı yazılır; zengin metin
saklandığı gibidir.)"_s,
             {{u"sira"_s, u"INDEKS"_s}},
             dump_table},
            {u"yukle"_s,
             u"DOSYA TABLO"_s,
             u"Standart girdideki CSV'yi bir tabloya yükler."_s,
             uR"(  --bosalt       tablo önce boşaltılır

dok'un yazdığı biçimi okur. Ya hepsi yüklenir ya hiçbiri; kabul edilmeyenin satırı ve alanı söylenir. CSV'de bulunmayan
alanlar Null olur.)"_s,
             {{u"bosalt"_s, {}}},
             load_table}};
}

}  // namespace

const std::vector<Verb>& verbs() {
    static const std::vector<Verb> all = [] {
        std::vector<Verb> verbs = daily_verbs();
        for (const Verb& verb : upkeep_verbs()) verbs.push_back(verb);
        return verbs;
    }();
    return all;
}

QString root_of(const Arguments& arguments) {
    return school::folder(arguments.value(u"kok"_s, school::default_root));
}

QString usage_of(const Verb& verb) {
    QStringList words{verb.name};
    if (!verb.positionals.isEmpty()) words.append(verb.positionals);
    for (const OptionDef& option : verb.options)
        words.append(u"[--%1]%2"_s.arg(option.value.isEmpty() ? option.name : option.name + u' ' + option.value,
                                       option.repeats ? u"…"_s : QString()));
    return words.join(u' ');
}
