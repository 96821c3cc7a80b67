#include "forms/record_layout.h"

using namespace Qt::StringLiterals;

namespace record_layout {

const std::vector<Block>& blocks() {
    static const std::vector<Block> list{
        {Column::identity,
         u"KİMLİK  BİLGİLERİ"_s,
         {{u"ONO"_s, u"SAKLA"_s},
          {u"ADSOY"_s},
          {u"CINSIYET"_s, u"KANGR"_s, u"KANRH"_s},
          {u"TEL"_s},
          {u"ADRES1"_s},
          {u"ADRES2"_s},
          {u"AILCE"_s, u"AIL"_s},
          {u"RESIM"_s, u"CommandONAME"_s},
          {u"BEDEN"_s, u"AYAKKABI"_s},
          {u"SERVISNO"_s, u"DURAKNO"_s, u"CommandSERVISBUL"_s}}},
        {Column::identity,
         u"KAYIT  BİLGİLERİ"_s,
         {{u"KAYTAR"_s, u"USER"_s},
          {u"SNF"_s},
          {u"DIN"_s, u"GRUP"_s},
          {u"BOLUM"_s, u"KALSEK"_s},
          {u"GELOKUL"_s},
          {u"OKULNO"_s, u"OZKOD"_s},
          {u"REFERANS"_s},
          {u"DTABLO"_s},
          {u"ACIKLAMA"_s},
          {u"AYTAR"_s, u"AYYER"_s}}},
        {Column::identity, u"YGS NETLERİ"_s, {{u"OO_4"_s, u"OO_5"_s}, {u"OO_6"_s, u"OO_7"_s}}},
        {Column::papers,
         u"NÜFÜS  CÜZDAN  BİLGİLERİ"_s,
         {{u"NCSNO"_s, u"VATNO"_s},
          {u"DOGYER"_s, u"DOGTAR"_s},
          {u"IL"_s, u"ILCE"_s},
          {u"KOY"_s},
          {u"CILT"_s, u"HANE"_s, u"SIRA"_s},
          {u"VERYER"_s, u"VERNEDEN"_s},
          {u"VERTAR"_s, u"KAYNO"_s}}},
        {Column::papers,
         u"VELİ  VE İŞYERİ  BİLGİLERİ"_s,
         {{u"VELI"_s},
          {u"VYAKINLIK"_s},
          {u"VTCNO"_s},
          {u"VTEL"_s, u"VGSM"_s},
          {u"VMAIL"_s},
          {u"VISVEREN"_s},
          {u"VIVUNVAN"_s},
          {u"VISADRES"_s},
          {u"VISTEL"_s},
          {u"VISGIRTAR"_s},
          {u"VISAYTAR"_s}}},
    };
    return list;
}

const std::vector<QStringList>& family_rows() {
    static const std::vector<QStringList> rows{
        {u"ANNE"_s, u"BABA"_s},       {u"AMESLEK"_s, u"BMESLEK"_s},   {u"AOKUL"_s, u"BOKUL"_s},
        {u"AISYERI"_s, u"BISYERI"_s}, {u"AISADRES"_s, u"BISADRES"_s}, {u"AISTEL"_s, u"BISTEL"_s},
        {u"AEVTEL"_s, u"BEVTEL"_s},   {u"AGSMTEL"_s, u"BGSMTEL"_s},
    };
    return rows;
}

}  // namespace record_layout
