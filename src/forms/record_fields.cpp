#include "forms/record_fields.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

using namespace Qt::StringLiterals;

const std::vector<RecordField>& record_fields() {
    using F = RecordField;
    using K = FieldKind;
    // clang-format off
    static const std::vector<RecordField> fields{
        {"ONO", K::number, "ONO", &KurvoYeni::ONO, u" Öğrenci No"_s, 0, 0},
        {"ADSOY", K::text, "ADSOY", &KurvoYeni::ADSOY, u" Ad Soyad"_s, 25, F::trims | F::moves | F::watched},
        {"SINIF", K::exception, "SNF", &KurvoYeni::SNF, u" Grup"_s, 0, F::watched},
        {"ADRES1", K::text, "ADRES1", &KurvoYeni::ADRES1, u" Adres"_s, 35, F::trims | F::moves},
        {"ADRES2", K::text, "ADRES2", &KurvoYeni::ADRES2, u" Adres"_s, 35, F::trims | F::moves},
        {"AILCE", K::text, "AILCE", &KurvoYeni::AILCE, u" İlçe"_s, 13, F::trims | F::moves},
        {"AIL", K::text, "AIL", &KurvoYeni::AIL, u" İl"_s, 13, F::trims | F::moves},
        {"TEL", K::text, "TEL", &KurvoYeni::TEL, u" Öğrenci GSM"_s, 13, F::trims | F::moves | F::watched | F::telephone},
        {"CINSIYET", K::position, "CINSIYET", &KurvoYeni::CINSIYET, u" Cinsiyet"_s, 0, F::moves},
        {"KANGR", K::position, "KANGR", &KurvoYeni::KANGR, u" Kan Grubu"_s, 0, F::moves},
        {"KANRH", K::position, "KANRH", &KurvoYeni::KANRH, u" Kan Grubu"_s, 0, F::moves},
        {"RESIM", K::rich_text, "RESIM", &KurvoYeni::RESIM, u" Fotoğraf dosya adı"_s, 0, F::moves},
        {"ACK", K::text, "ACIKLAMA", &KurvoYeni::ACIKLAMA, u" Hatırlatma Notu"_s, 50, F::trims | F::moves},
        {"KAYTAR", K::date, "KAYTAR", &KurvoYeni::KAYTAR, u" Kayıt Tarihi"_s, 0, F::watched},
        {"GELOKUL", K::exception, "GELOKUL", &KurvoYeni::GELOKUL, u" Okulu"_s, 0, F::trims | F::moves},
        {"OKULNO", K::text, "OKULNO", &KurvoYeni::OKULNO, u" Okul Numarası"_s, 0, F::trims | F::moves},
        {"GRUP", K::position, "GRUP", &KurvoYeni::GRUP, u" Zaman"_s, 0, F::moves},
        {"BOLUM", K::position_text, "BOLUM", &KurvoYeni::BOLUM, u" Alan/Kol"_s, 0, F::moves | F::watched},
        {"KALSEK", K::position, "KALSEK", &KurvoYeni::KALSEK, u" Okul Türü"_s, 0, F::moves},
        {"DIN", K::position, "DIN", &KurvoYeni::DIN, u" Sınıf"_s, 0, F::moves | F::watched},
        {"VELI", K::text, "VELI", &KurvoYeni::VELI, u" Adı"_s, 25, F::trims | F::moves | F::watched},
        {"VYAKINLIK", K::text, "VYAKINLIK", &KurvoYeni::VYAKINLIK, u" Yakınlık ve Meslek"_s, 25, F::trims},
        {"VTCNO", K::text, "VTCNO", &KurvoYeni::VTCNO, u" TC.No"_s, 13, F::trims | F::moves},
        {"VTEL", K::text, "VTEL", &KurvoYeni::VTEL, u" Telefonu"_s, 13, F::trims | F::moves},
        {"VGSM", K::text, "VGSM", &KurvoYeni::VGSM, u" GSM"_s, 13, F::trims | F::moves | F::watched | F::telephone},
        {"VMAIL", K::rich_text, "VMAIL", &KurvoYeni::VMAIL, u" E-mail"_s, 0, F::trims | F::moves},
        {"AYTAR", K::date, "AYTAR", &KurvoYeni::AYTAR, u" Ayrılış tarihi ve Nedeni"_s, 0, 0},
        {"AYYER", K::text, "AYYER", &KurvoYeni::AYYER, u" Ayrılış tarihi ve Nedeni"_s, 25, F::trims},
        {"NCSNO", K::text, "NCSNO", &KurvoYeni::NCSNO, u" Seri ve No"_s, 13, F::trims | F::moves},
        {"VATNO", K::text, "VATNO", &KurvoYeni::VATNO, u" TC No"_s, 13, F::trims | F::moves},
        {"DOGYER", K::text, "DOGYER", &KurvoYeni::DOGYER, u" Doğum Yeri"_s, 13, F::trims | F::moves},
        {"DOGTAR", K::date, "DOGTAR", &KurvoYeni::DOGTAR, u" Doğum Tarihi"_s, 0, F::moves},
        {"IL", K::text, "IL", &KurvoYeni::IL, u" İl"_s, 13, F::trims | F::moves},
        {"ILCE", K::text, "ILCE", &KurvoYeni::ILCE, u" İlçe"_s, 13, F::trims | F::moves},
        {"KOY", K::text, "KOY", &KurvoYeni::KOY, u" Mahalle/Köy"_s, 13, F::trims | F::moves},
        {"CILT", K::text, "CILT", &KurvoYeni::CILT, u" Cilt No"_s, 8, F::trims | F::moves},
        {"HANE", K::text, "HANE", &KurvoYeni::HANE, u" Hane No"_s, 8, F::trims | F::moves},
        {"SIRA", K::text, "SIRA", &KurvoYeni::SIRA, u" Sıra No"_s, 8, F::trims | F::moves},
        {"VERYER", K::text, "VERYER", &KurvoYeni::VERYER, u" Verildiği Yer"_s, 13, F::trims | F::moves},
        {"VERNEDEN", K::position, "VERNEDEN", &KurvoYeni::VERNEDEN, u" Veriliş Nedeni"_s, 0, F::moves},
        {"VERTAR", K::date, "VERTAR", &KurvoYeni::VERTAR, u" Veriliş Tarihi"_s, 0, F::moves},
        {"KAYNO", K::text, "KAYNO", &KurvoYeni::KAYNO, u" Kayıt No"_s, 8, F::trims | F::moves},
        {"ANNE", K::text, "ANNE", &KurvoYeni::ANNE, u" Adı"_s, 20, F::trims | F::moves | F::watched},
        {"AMESLEK", K::text, "AMESLEK", &KurvoYeni::AMESLEK, u" Mesleği"_s, 20, F::trims | F::moves},
        {"AOKUL", K::text, "AOKUL", &KurvoYeni::AOKUL, u" Mezun Olduğu Okul"_s, 20, F::trims | F::moves},
        {"AISYERI", K::text, "AISYERI", &KurvoYeni::AISYERI, u" İşyeri Ünvanı"_s, 25, F::trims | F::moves},
        {"AISADRES", K::text, "AISADRES", &KurvoYeni::AISADRES, u" İşyeri Adresi"_s, 50, F::trims | F::moves},
        {"AISTEL", K::text, "AISTEL", &KurvoYeni::AISTEL, u" İş  Telefonu"_s, 13, F::trims | F::moves},
        {"AEVTEL", K::text, "AEVTEL", &KurvoYeni::AEVTEL, u" Ev Telefonu"_s, 13, F::trims | F::moves},
        {"AGSMTEL", K::text, "AGSMTEL", &KurvoYeni::AGSMTEL, u" GSM"_s, 13, F::trims | F::moves | F::watched | F::telephone},
        {"BABA", K::text, "BABA", &KurvoYeni::BABA, u" Adı"_s, 20, F::trims | F::moves | F::watched},
        {"BMESLEK", K::text, "BMESLEK", &KurvoYeni::BMESLEK, u" Mesleği"_s, 20, F::trims | F::moves},
        {"BOKUL", K::text, "BOKUL", &KurvoYeni::BOKUL, u" Mezun Olduğu Okul"_s, 20, F::trims | F::moves},
        {"BISYERI", K::text, "BISYERI", &KurvoYeni::BISYERI, u" İşyeri Ünvanı"_s, 25, F::trims | F::moves},
        {"BISADRES", K::text, "BISADRES", &KurvoYeni::BISADRES, u" İşyeri Adresi"_s, 50, F::trims | F::moves},
        {"BISTEL", K::text, "BISTEL", &KurvoYeni::BISTEL, u" İş  Telefonu"_s, 13, F::trims | F::moves},
        {"BEVTEL", K::text, "BEVTEL", &KurvoYeni::BEVTEL, u" Ev Telefonu"_s, 13, F::trims | F::moves},
        {"BGSMTEL", K::text, "BGSMTEL", &KurvoYeni::BGSMTEL, u" GSM"_s, 13, F::trims | F::moves | F::watched | F::telephone},
        {"AYRI", K::check, "AYRI", &KurvoYeni::AYRI, u"Ayrılar"_s, 0, F::moves},
        {"KRDSAY", K::number, "KRDSAY", &KurvoYeni::KRDSAY, u" Kardeş Sayısı"_s, 0, F::moves},
        {"SAVBEL", K::check_text, "SAVBEL", &KurvoYeni::SAVBEL, u" Savcılık belgesi alındı"_s, 0, F::moves},
        {"SAKLA", K::check, "SAKLA", &KurvoYeni::SAKLA, u""_s, 0, 0},
        {"NOT", K::untouched, "", {}, u""_s, 0, 0},
        {"OZELKOD", K::exception, "OZKOD", &KurvoYeni::OZKOD, u" Özel Kod"_s, 0, F::moves | F::watched},
        {"ORT9", K::number, "OO_4", &KurvoYeni::OO_4, u"Türkçe"_s, 0, F::moves},
        {"ORT10", K::number, "OO_5", &KurvoYeni::OO_5, u"T.Matematik"_s, 0, F::moves},
        {"ORT11", K::number, "OO_6", &KurvoYeni::OO_6, u"Sosyal Bilimler"_s, 0, F::moves},
        {"ORT12", K::number, "OO_7", &KurvoYeni::OO_7, u"Fen Bilimleri"_s, 0, F::moves},
        {"REFERANS", K::text, "REFERANS", &KurvoYeni::REFERANS, u" Referans"_s, 20, F::trims},
        {"USER", K::exception, "USER", &KurvoYeni::USER, u"Kaydı Alan :"_s, 0, 0},
        {"KTUTAR", K::exception, "KTUTAR", &KurvoYeni::KTUTAR, u" Toplam Kayıt bedeli"_s, 0, 0},
        {"ISKONTO", K::exception, "ISKONTO", &KurvoYeni::ISKONTO, u"  İskonto Yüzdesi"_s, 0, 0},
        {"VISVEREN", K::text, "VISVEREN", &KurvoYeni::VISVEREN, u" İşveren Adı"_s, 25, F::trims | F::moves},
        {"VIVUNVAN", K::text, "VIVUNVAN", &KurvoYeni::VIVUNVAN, u" İşveren Ünvanı"_s, 40, F::trims | F::moves},
        {"VISADRES", K::text, "VISADRES", &KurvoYeni::VISADRES, u" İş Adresi"_s, 70, F::trims | F::moves},
        {"VISTEL", K::text, "VISTEL", &KurvoYeni::VISTEL, u" İş  Telefonu"_s, 11, F::trims | F::moves},
        {"VISGIRTAR", K::text, "VISGIRTAR", &KurvoYeni::VISGIRTAR, u" İşe Giriş Tarihi"_s, 10, F::trims | F::moves},
        {"VISAYTAR", K::text, "VISAYTAR", &KurvoYeni::VISAYTAR, u" İşten Ayrılış Tarihi"_s, 10, F::trims | F::moves},
        {"NOT1", K::untouched, "", {}, u""_s, 0, 0},
        {"NOT2", K::untouched, "", {}, u""_s, 0, 0},
        {"DTABLO", K::exception, "DTABLO", &KurvoYeni::DTABLO, u" Ders Tablosu"_s, 0, 0},
        {"AYAKKABI", K::number, "AYAKKABI", &KurvoYeni::AYAKKABI, u" Ayakkabı numarası"_s, 20, F::moves},
        {"BEDEN", K::text, "BEDEN", &KurvoYeni::BEDEN, u" Beden numarası"_s, 5, F::trims | F::moves},
        {"SERVISNO", K::number, "SERVISNO", &KurvoYeni::SERVISNO, u" Servis No"_s, 20, F::moves},
        {"DURAKNO", K::number, "DURAKNO", &KurvoYeni::DURAKNO, u" Durak No"_s, 20, F::moves},
    };
    // clang-format on
    return fields;
}

const RecordField& record_field(const char* field) {
    const auto found = std::ranges::find(record_fields(), std::string_view(field),
                                         [](const RecordField& row) { return std::string_view(row.field); });
    if (found == record_fields().end()) throw std::out_of_range(field);
    return *found;
}

QWidget* control_of(const RecordField& field, const KurvoYeni& form) {
    return std::visit(
        [&](auto member) -> QWidget* {
            if constexpr (std::is_same_v<decltype(member), std::monostate>)
                return nullptr;
            else
                return form.*member;
        },
        field.member);
}
