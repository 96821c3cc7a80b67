// A school of a test's own: drives with every file that a session needs, filled by short sentences.
//
//   School school;
//   school.student(1250).name("AYŞE YILMAZ").instalment("20261001", 1000).payment("20261001", "20261005", "101500",
//   400);
//
// Numbers, dates and times are written as the tables hold them.
#pragma once

#include "platform/rich_text.h"
#include "store/record.h"
#include "support/drives.h"

#include <QMap>
#include <QStringList>

#include <string_view>
#include <utility>
#include <vector>

class School {
public:
    using Fields = std::vector<std::pair<std::string_view, store::Value>>;
    using Texts = QMap<QString, QString>;  // field -> text, Null as an empty one

    explicit School(QString term = QStringLiteral("2026"));

    // What is known of one student; each call adds a row or sets a field.
    class Student {
    public:
        Student& name(const QString& adsoy) { return set("ADSOY", adsoy); }
        Student& set(std::string_view field, const store::Value& value);
        Student& photo(const QString& plain) { return set("RESIM", rich_text::from_plain(plain)); }
        Student& instalment(const QString& vade, double tutar) {
            return with("Odeme",
                        {{"VADE", vade}, {"TUTAR", tutar}, {"ODENEN", 0}, {"ACK", " "}, {"ODSEK", 2}, {"CYER", " "}});
        }
        // A payment on an instalment that is there, with its row in the cash book; raises what is paid on it.
        Student& payment(const QString& vade, const QString& tarih, const QString& saat, double odenen);
        // Hours with leave, without leave, with a report.
        Student& absence(const QString& tarih, const QString& dkod, int izinli, int izinsiz, int raporlu) {
            return with(
                "Devam",
                {{"TARIH", tarih}, {"DKOD", dkod}, {"IZINLI", izinli}, {"IZINSIZ", izinsiz}, {"RAPORLU", raporlu}});
        }
        Student& study_absence(const QString& tarih, const QString& dkod, int izinli, int izinsiz, int raporlu) {
            return with(
                "EtudDevam",
                {{"TARIH", tarih}, {"DKOD", dkod}, {"IZINLI", izinli}, {"IZINSIZ", izinsiz}, {"RAPORLU", raporlu}});
        }
        Student& excuse(const QString& tarih, const QString& ack) {
            return with("Dmazeret", {{"TARIH", tarih}, {"ACK", ack}});
        }
        Student& study_excuse(const QString& tarih, const QString& ack) {
            return with("Emazeret", {{"TARIH", tarih}, {"ACK", ack}});
        }
        Student& session(const QString& tarih, const QString& saat, const QString& bitsaat, const QString& kod,
                         int sicil) {
            Fields fields{{"TARIH", tarih}, {"SAAT", saat}, {"BITSAAT", bitsaat}, {"KOD", kod}, {"SICIL", sicil}};
            for (const char* blank : {"GIRDI", "KONU"}) fields.emplace_back(blank, " ");
            return with("Etud", fields);
        }

    private:
        friend class School;
        Student(School& school, int number) : school_(school), number_(number) {}
        // Adds a row with these fields and the number.
        Student& with(std::string_view table, Fields fields);
        School& school_;
        int number_;
    };

    // The student of this number; added with all 85 fields blank or 0 where there is none.
    Student student(int number);
    School& school_class(const QString& sinif, const QString& ack) {
        return with("Sinif", {{"SINIF", sinif}, {"ACK", ack}, {"KAPASITE", 0}});
    }
    School& lesson(const QString& kod, const QString& tanim) { return with("Ders", {{"KOD", kod}, {"TANIM", tanim}}); }
    School& teacher(int sicil, const QString& adsoy) { return with("Ogretmen", {{"SICIL", sicil}, {"ADSOY", adsoy}}); }
    School& stop(int sno, int drk, const QString& ack) {
        return with("Servis", {{"SNO", sno}, {"DRK", drk}, {"ACK", ack}});
    }
    School& user(const QString& kod, const QString& options) { return coded("users", kod, "DKOD", options); }
    School& running_program(const QString& kod = QStringLiteral("Kurvo")) { return with("prg", {{"KOD", kod}}); }
    // The version of the data files, "21.1" at first; an empty one takes the row away.
    School& data_version(const QString& version);

    // The launcher's items; writes c:\qlm\log.txt, which a start-up consumes.
    struct HandOver {
        QString rights = QStringLiteral("111111");
        QString version = QStringLiteral("21.1");
        QString remote_key = {};
    };
    void hand_over(const HandOver& items) const;

    // A second term with its own file.
    void add_term(const QString& term) const;

    // Adds a row with these fields alone, to the file that holds such a table.
    void add(std::string_view table, const Fields& fields) const;
    // The row with this key of the primary order; empty where there is none.
    Texts row(std::string_view table, std::initializer_list<store::Value> key) const;
    // All rows in the primary order, the fields of each joined by "|".
    QStringList rows(std::string_view table, std::initializer_list<std::string_view> fields) const;

    const QString& term() const { return term_; }
    QString data_root() const { return QStringLiteral("c:\\okul\\"); }
    QString data_file(const QString& name) const { return data_root() + QStringLiteral("data\\") + name; }
    QString term_file() const { return data_file(term_ + QStringLiteral("ogr.mdb")); }
    QString reference_file() const { return data_file(QStringLiteral("Bilgi.mdb")); }

    const Drives drives;

private:
    std::vector<std::pair<store::FileKind, QString>> files() const;
    QString file_of(std::string_view table) const;
    School& with(std::string_view table, const Fields& fields);
    // The row of this code, added where there is none, with a field as rich text.
    School& coded(std::string_view table, const QString& kod, std::string_view field, const QString& plain);
    void make_file(const QString& file, store::FileKind kind) const;

    QString term_;
};
