#include "web/remote_directory.h"

#include "forms/kurvo_yeni.h"
#include "platform/clock.h"
#include "platform/date_picker.h"
#include "platform/numbers.h"

#include <exception>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<QString>;

constexpr const char* find_row = "select * FROM ogrenci where sq_id=? and sq_ono=?";
constexpr const char* insert_row = "insert into ogrenci values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)";
constexpr const char* update_row =
    "update ogrenci set sq_adsoyad=?,sq_alan=?,sq_grup=?,sq_snf=?,sq_ozelgrup=?,sq_veli=?,sq_anne=?,sq_baba=?,"
    "sq_gsm=?,sq_veligsm=?,sq_annegsm=?,sq_babagsm=?,sq_kay_tar=?,sq_kay_saat=?,sq_kay_gsm=? "
    "where sq_id=? and sq_ono=?";
constexpr const char* delete_row = "delete from ogrenci where sq_id=? and sq_ono=? limit 1";

const QString blank = u" "_s;

QString track_code(int position) {
    static const QStringList codes{blank, u"SÖZ"_s, u"SAY"_s, u"EA"_s, u"YD"_s, u"KPS"_s, u"DGS"_s, u"YÖS"_s};
    return codes.value(position, blank);
}

QString grade_code(int position) {
    static const QStringList codes{u"1"_s, u"2"_s, u"3"_s,  u"4"_s,  u"5"_s,  u"6"_s,  u"7"_s,
                                   u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s, u"MZ"_s, u"-"_s};
    return codes.value(position, blank);
}

QString class_code(const QString& entry) {
    constexpr qsizetype code_length = 4;
    const QString code = entry.left(code_length).trimmed();
    return code.isEmpty() ? blank : code;
}

// However it was typed: 0012 and 12 are the same student.
QString number_of(const KurvoYeni& form) {
    return numbers::plain(numbers::val(form.ONO->text()));
}

// The columns behind the key, in the order of the table.
Texts columns_of(const KurvoYeni& form) {
    return {form.ADSOY->text(),
            track_code(form.BOLUM->currentIndex()),
            class_code(form.SNF->currentText()),
            grade_code(form.DIN->currentIndex()),
            form.OZKOD->currentText(),
            form.VELI->text(),
            form.ANNE->text(),
            form.BABA->text(),
            form.TEL->text(),
            form.VGSM->text(),
            form.AGSMTEL->text(),
            form.BGSMTEL->text(),
            form.KAYTAR->date().toString(u"yyyy-MM-dd"_s),
            dates::short_time(clock_source::now().time()),
            blank};
}

Texts joined(Texts first, const Texts& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace

mariadb::Connection RemoteDirectory::uzak_baglan() const {
    mariadb::Connection connection(
        {session_.remoteHost, session_.remoteDatabase, session_.remoteUser, session_.remotePassword}, limits_);
    connection.run("SET NAMES 'latin5'");
    connection.run("SET CHARACTER SET latin5");
    connection.run("SET COLLATION_CONNECTION = 'latin5_turkish_ci'");
    connection.run("START TRANSACTION");
    return connection;
}

// Nothing of the exchange counts before its end is committed.
void RemoteDirectory::exchange(const std::function<void(mariadb::Connection&)>& statements,
                               const QString& trouble) const {
    try {
        mariadb::Connection connection = uzak_baglan();
        statements(connection);
        connection.run("COMMIT");
    } catch (const std::exception& error) {
        throw std::runtime_error((trouble + u"\n\n"_s + QString::fromUtf8(error.what())).toStdString());
    }
}

void RemoteDirectory::uzak_ogrenci_yaz(const KurvoYeni& form) const {
    const Texts key{session_.remoteSchoolKey, number_of(form)}, columns = columns_of(form);
    exchange(
        [&](mariadb::Connection& connection) {
            if (connection.run(find_row, key) == 0)
                connection.run(insert_row, joined(key, columns));
            else
                connection.run(update_row, joined(columns, key));
        },
        u"%1 numaralı öğrenci kaydedildi, ancak uzak öğrenci dizininde henüz yayımlanmadı. Bilgileri yeniden "
        "girmeyiniz: öğrencinin değişen bir bilgisi kaydedildiğinde yeniden yayımlanır."_s.arg(key[1]));
}

void RemoteDirectory::uzak_ogrenci_sil(const KurvoYeni& form) const {
    const Texts key{session_.remoteSchoolKey, number_of(form)};
    exchange(
        [&](mariadb::Connection& connection) {
            if (connection.run(find_row, key) > 0) connection.run(delete_row, key);
        },
        u"%1 numaralı öğrenci silindi, ancak silindiği uzak öğrenci dizininde henüz yayımlanmadı. Silme işlemini "
        "yinelemeyiniz: dizinde kalan satırı dizinin sorumlusuna sildiriniz."_s.arg(key[1]));
}
