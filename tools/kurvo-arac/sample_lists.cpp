#include "sample_lists.h"

using namespace Qt::StringLiterals;

namespace sample {
namespace {

QStringList words(const QString& separated) {
    return separated.split(u'|');
}

}  // namespace

const std::vector<Lesson> lessons{{u"TR"_s, u"Türkçe"_s},   {u"MT"_s, u"Matematik"_s}, {u"GM"_s, u"Geometri"_s},
                                  {u"FZ"_s, u"Fizik"_s},    {u"KM"_s, u"Kimya"_s},     {u"BY"_s, u"Biyoloji"_s},
                                  {u"TH"_s, u"Tarih"_s},    {u"CĞ"_s, u"Coğrafya"_s},  {u"FL"_s, u"Felsefe"_s},
                                  {u"ED"_s, u"Edebiyat"_s}, {u"İN"_s, u"İngilizce"_s}, {u"RH"_s, u"Rehberlik"_s}};

const QStringList teachers = words(
    u"AYLA KORKMAZ|ÇİĞDEM TUNA|ÖMER FARUK IŞIK|ŞÜKRAN DEMİREL|İBRAHİM ÇAKIR|ÜLKÜ SEZER|CEMAL OĞUZ|ILGIN "
    "BAYRAM|GÜLAY ÖZDEMİR|HASAN ŞAHİNER|ÇETİN YALÇINKAYA|ZEHRA ÜNSAL|SELİM ATEŞ|ŞEBNEM KIRAÇ|NURETTİN "
    "GÜVEN|ÖZLEM TAŞÇI|VOLKAN İNCE|MELAHAT DURU"_s);

int teacher_of(int lesson) {
    return first_teacher + lesson % static_cast<int>(teachers.size());
}

const QStringList girls = words(
    u"AYŞE|ZEYNEP|ELİF|ECRİN|DEFNE|AZRA|EYLÜL|NEHİR|ASYA|ÖYKÜ|İREM|ŞEVVAL|BÜŞRA|MERVE|ÇAĞLA|GİZEM|SUDE|"
    "İPEK|ILGAZ|CEREN|BEYZA|TUĞÇE|ÜMRAN|DİLARA|ESRA|HATİCE|SENA|YAĞMUR|DAMLA|FEYZA"_s);
const QStringList boys = words(
    u"MEHMET|MUSTAFA|EMİR|YUSUF|ÖMER|KEREM|ÇINAR|EFE|BARIŞ|ŞAHİN|UMUT|İLKER|IŞIK|OĞUZ|ÜNAL|BURAK|CAN|DENİZ|"
    "EGE|FURKAN|GÖKHAN|HAKAN|KAAN|ONUR|SARP|TOLGA|YİĞİT|ALP|BERK|ÇAĞAN"_s);
const QStringList women =
    words(u"FATMA|EMİNE|HÜLYA|SEVGİ|ŞENAY|GÜLSEREN|ÖZLEM|ÇİÇEK|NURAN|İNCİ|AYTEN|SERPİL|ÜLKER|YILDIZ|NESRİN|FİLİZ"_s);
const QStringList men =
    words(u"AHMET|HÜSEYİN|İSMAİL|KEMAL|ŞÜKRÜ|OSMAN|ÖZCAN|ÇETİN|RAMAZAN|SÜLEYMAN|ÜMİT|VEDAT|YAŞAR|ORHAN|METİN|HALİL"_s);
const QStringList surnames = words(
    u"YILMAZ|KAYA|DEMİR|ŞAHİN|ÇELİK|YILDIZ|YILDIRIM|ÖZTÜRK|AYDIN|ÖZDEMİR|ARSLAN|DOĞAN|KILIÇ|ASLAN|ÇETİN|KARA|"
    "KOÇ|KURT|ÖZKAN|ŞİMŞEK|POLAT|KORKMAZ|ÖZCAN|ÇAKIR|ERDOĞMUŞ|AKIN|ÜNLÜ|IŞIK|İNAN|GÜNEŞ|BULUT|TEKİN|UÇAR|"
    "YAVUZ|AVCI|GÜLER|ŞEN|TAŞ|ACAR|ERGÜN"_s);

const QStringList streets =
    words(u"LALE SOK.|İSTİKLAL CAD.|ÇAMLIK SOK.|ŞEHİTLER CAD.|GÜL SOK.|ÖZGÜRLÜK CAD.|IHLAMUR SOK.|ATATÜRK BULV."_s);
const QStringList districts = words(u"NİLÜFER|OSMANGAZİ|YILDIRIM|GÜRSU|KESTEL|MUDANYA"_s);
const QStringList occupations =
    words(u"ÖĞRETMEN|ESNAF|MÜHENDİS|HEMŞİRE|İŞÇİ|ÇİFTÇİ|MEMUR|ŞOFÖR|EV HANIMI|AVUKAT|MUHASEBECİ|EMEKLİ"_s);
const QStringList schools = words(
    u"ATATÜRK ANADOLU LİSESİ|CUMHURİYET ORTAOKULU|FEN LİSESİ|MESLEKİ VE TEKNİK ANADOLU LİSESİ|NAMIK KEMAL "
    "ANADOLU LİSESİ|ULUDAĞ ORTAOKULU|ÇAMLICA ANADOLU LİSESİ|ŞEHİT ÖĞRETMENLER ORTAOKULU|İSTİKLAL LİSESİ"_s);
const QStringList special_codes = words(u"BRS|KRD|PRS|ÖZL"_s);
const QStringList referrers = words(u"KOMŞU|ESKİ ÖĞRENCİMİZ|OKUL REHBERLİĞİ|İNTERNET|AFİŞ"_s);

const QStringList excuses = words(
    u"Grip, doktor raporu getirdi.|Velisi telefonla izin aldı.|Okulda sınavı vardı.|Şehir dışına çıktı.|Diş "
    "doktoru randevusu.|Servis gecikti.|Cenaze, \"aile büyüğü\" için izinli."_s);
const QStringList topics = words(
    u"Soru çözümü|Türev uygulamaları|Paragraf|Üslü sayılar|Hücre bölünmesi|Çembersel hareket|İntegral|Kuvvet ve "
    "hareket|Deneme sınavı yanlışları|Şiir bilgisi"_s);
const QStringList notes = words(
    u"Velisiyle görüşüldü, çalışma programı hazırlandı.|Deneme sonuçları yükseliyor; ödevlerini düzenli "
    "yapıyor.|Matematikte destek etüdü istiyor.|Derse geç kalıyor, servis saati değiştirildi.|Burs sınavına "
    "girecek."_s);
const QStringList reminders =
    words(u"Gözlük kullanıyor|Alerjisi var|Velisi öğleden sonra aransın|Ödeme tarihi değişti"_s);
const QStringList leaving_reasons =
    words(u"Taşındı|Başka dershaneye geçti|Sağlık nedeniyle|Kendi isteğiyle|Ücret nedeniyle"_s);
const QStringList cash_types = words(u"TL|KREDİ KARTI|BANKA HAVALESİ|EURO"_s);

const std::vector<Fee> fees{{u"Sözel"_s, 36000},       {u"Sayısal"_s, 42000},  {u"Eşit Ağırlık"_s, 38500},
                            {u"Yabancı Dil"_s, 40000}, {u"KPSS"_s, 18000},     {u"DGS"_s, 16500},
                            {u"YÖS"_s, 21000},         {u"8. Sınıf"_s, 27500}, {u"Lise-1"_s, 28000},
                            {u"Lise-2"_s, 29750},      {u"Lise-3"_s, 34000},   {u"Lise-4"_s, 39000},
                            {u"Mezun"_s, 41250}};

int fee_of(const QString& choice) {
    for (const Fee& fee : fees)
        if (fee.choice == choice) return fee.amount;
    return 0;
}

const std::vector<Discount> discounts{{5, u"Peşin ödeme"_s},
                                      {10, u"Kardeş indirimi"_s},
                                      {15, u"Öğretmen çocuğu"_s},
                                      {25, u"Başarı bursu"_s},
                                      {50, u"Yarım burs"_s}};

const std::vector<Route> routes{
    {u"NİLÜFER HATTI"_s, {u"Ihlamur Sok.#Eczane önü#07.40"_s, u"Çamlık Cad.#Okul kapısı#07.50"_s}},
    {u"OSMANGAZİ HATTI"_s, {u"Şehitler Cad.#Durak#07.35"_s, u"İstiklal Cad.#Banka önü#07.45"_s, u"Gül Sok.#08.00"_s}},
    {u"GÜRSU HATTI"_s, {u"Belediye#07.20"_s, u"Üçevler#Fırın önü#07.30"_s}},
    {u"MUDANYA HATTI"_s, {u"İskele#07.10"_s, u"Güzelyalı#Sahil yolu#07.25"_s}}};

const std::vector<Grade> grades{{u"8"_s, u"8. Sınıf"_s, 7, 13, false}, {u"9"_s, u"Lise-1"_s, 8, 14, false},
                                {u"10"_s, u"Lise-2"_s, 9, 15, false},  {u"11"_s, u"Lise-3"_s, 10, 16, true},
                                {u"12"_s, u"Lise-4"_s, 11, 17, true},  {u"M"_s, u"Mezun"_s, 12, 18, true}};

const QStringList tracks = words(u" |Sözel|Sayısal|Eşit Ağırlık|Yabancı Dil|KPSS|DGS|YÖS"_s);

}  // namespace sample
