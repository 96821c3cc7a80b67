#include "upkeep_verbs.h"

#include "audit.h"
#include "backup.h"
#include "console.h"
#include "move_verb.h"
#include "platform/refusal.h"
#include "school.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void check_school(const Arguments& arguments) {
    const std::vector<audit::Finding> findings =
        audit::look_over(school::folder(arguments.positional(0, school::default_root)));
    for (const audit::Finding& finding : findings)
        console::say(u"%1 %2: %3\n"_s.arg(finding.fault ? u"HATA "_s : u"UYARI"_s, finding.place, finding.words));
    const auto faults = std::ranges::count(findings, true, &audit::Finding::fault);
    const auto notices = static_cast<qsizetype>(findings.size()) - faults;
    const QString sum = u"%1 hata, %2 uyarı bulundu."_s.arg(faults).arg(notices);
    if (faults > 0) refuse(sum);
    console::say(sum + u'\n');
}

void back_up(const Arguments& arguments) {
    const backup::Taken taken = backup::take(root_of(arguments), arguments.positional(0));
    console::say(u"%1 dosya yedeklendi: %2\n"_s.arg(taken.files).arg(arguments.positional(0)));
    if (!taken.one_moment)
        console::say(u"Okul hiç durmadan yazdığı için dosyalar aynı ana ait değil; her biri kendi içinde tutarlı.\n"_s);
}

void put_back(const Arguments& arguments) {
    const QString root = root_of(arguments), source = arguments.positional(0);
    const QString question =
        u"%1 okulu, %2 tarihli yedeğe döndürülecek; o tarihten sonra girilenler silinir.\n"
        u"Önce bütün iş istasyonlarında programı kapatın. Devam edilsin mi?"_s.arg(root, backup::taken_at(source));
    if (!arguments.has(u"evet"_s) && !console::agrees(question)) refuse(u"Vazgeçildi."_s);
    const QStringList left = backup::put_back(source, root);
    console::say(u"Yedek geri yüklendi: %1\n"_s.arg(root));
    if (!left.isEmpty()) console::say(u"Yedekte olmayan dosyalar olduğu gibi kaldı: %1\n"_s.arg(left.join(u", "_s)));
}

}  // namespace

std::vector<Verb> upkeep_verbs() {
    return {{u"denetle"_s,
             u"[KÖK]"_s,
             u"Bir okulun dosyalarını denetler."_s,
             uR"(KÖK verilmezse c:\okul\. Bütün veritabanları aynı andaki halleriyle okunur, iş istasyonları beklemez.

HATA satırları düzeltilmesi gerekenlerdir: bozuk ya da eksik dosya, ödeneni tahsilatlarını tutmayan taksit, öğrencisi
olmayan kayıt, bir boşluk yerine boş metin, tarih olmayan tarih, okunamayan zengin metin, sıfır sayaçlar, yinelenen
anahtar. UYARI satırları çalışırken kalabilenlerdir: taksiti ya da kasa kaydı olmayan tahsilat, öğrencisi silinmiş kasa
kaydı, kaydı olmayan ders ve öğretmen kodu, listesinin dışında kalan değer. Hata varsa çıkış durumu 1 olur.)"_s,
             {},
             check_school},
            {u"yedekle"_s,
             u"HEDEF"_s,
             u"Bir okulun bütün dosyalarını, okul çalışırken, yedekler."_s,
             uR"(  --kok KÖK      veri kökü; verilmezse c:\okul\

HEDEF yeni ya da boş bir klasördür ve okulun klasörünün dışında durur. Veritabanları, parametre dosyaları ve fotoğraflar
kopyalanır. Yarıda kesilen yedek HEDEF.yarim adıyla kalır, yedek sayılmaz.)"_s,
             {root_option},
             back_up},
            {u"geri-yukle"_s,
             u"YEDEK"_s,
             u"Bir yedeği okula geri yükler."_s,
             uR"(  --kok KÖK      veri kökü; verilmezse c:\okul\
  --evet         sormadan yükler

Önce bütün iş istasyonlarında program kapatılır. Okulun bozuk bir veritabanı DOSYA.bozuk adıyla yanında kalır, yedekte
olmayan veritabanlarına dokunulmaz.)"_s,
             {root_option, {u"evet"_s, {}}},
             put_back},
            move_verb()};
}
