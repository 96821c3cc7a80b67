#include "office.h"
#include "support/run_all.h"

#include <map>
#include <optional>
#include <random>

namespace {

using Key = std::pair<int, QString>;
struct Row {
    int amount;
    int entry;  // tells a row from a later one with the same key
};
using Model = std::map<Key, Row>;

// One opener of the file; `place` is the key of the row that its cursor stands on or behind, none where undefined.
struct Opener {
    explicit Opener(const QString& file) : database(store::OpenDatabase(file)) {}

    store::Database database;
    store::Recordset odeme = database.OpenRecordset("Odeme");
    std::optional<Key> place;
    int entry = 0;
};

// A random walk over few keys, so that collisions, empty tables and vanished rows are frequent.
class Walk {
public:
    Walk(const QString& file, unsigned seed) : random_(seed), openers_{Opener(file), Opener(file)} {}

    void step() {
        Opener& opener = openers_[roll(2)];
        switch (roll(10)) {
            case 0:
            case 1:
                return add_row(opener);
            case 2:
                return change(opener, false);
            case 3:
                return change(opener, true);
            case 4:
                return erase(opener);
            case 5:
                return seek_equal(opener);
            case 6:
                return seek_greater(opener);
            case 7:
                return scan(opener);
            case 8:
                QCOMPARE(opener.odeme.RecordCount(), static_cast<std::int64_t>(model_.size()));
                return;
            default:
                return move_next(opener);
        }
    }

private:
    unsigned roll(unsigned sides) { return static_cast<unsigned>(random_() % sides); }
    Key random_key() { return {static_cast<int>(roll(4)), QStringLiteral("2026%1").arg(1001 + roll(12))}; }
    void expect(Opener& opener, Model::iterator row) {
        opener.place.reset();
        if (row == model_.end()) return;
        QCOMPARE(opener.odeme["ONO"].whole_number(), row->first.first);
        QCOMPARE(opener.odeme["VADE"].text(), row->first.second);
        QCOMPARE(opener.odeme["TUTAR"].whole_number(), row->second.amount);
        opener.place = row->first;
        opener.entry = row->second.entry;
    }

    void add_row(Opener& opener) {
        const Key key = random_key();
        const int amount = ++last_;
        const auto code = code_of([&] { add_instalment(opener.odeme, key.first, key.second, amount); });
        QCOMPARE(code == store::Errc::duplicate_key, model_.contains(key));
        model_.try_emplace(key, Row{amount, amount});
        if (!opener.place) return;
        const auto row = model_.find(*opener.place);
        if (row != model_.end() && row->second.entry == opener.entry) QCOMPARE(here(opener), *opener.place);
    }

    // Seeks first, so that the row is there; with a new key the row moves and the cursor with it.
    void change(Opener& opener, bool key_too) {
        seek_equal(opener);
        if (!opener.place) return;
        const Key before = *opener.place, after = key_too ? random_key() : before;
        const int amount = ++last_;
        opener.odeme.Edit();
        opener.odeme["TUTAR"] = amount;
        if (key_too) {
            opener.odeme["ONO"] = after.first;
            opener.odeme["VADE"] = after.second;
        }
        const bool taken = after != before && model_.contains(after);
        QCOMPARE(code_of([&] { opener.odeme.Update(); }) == store::Errc::duplicate_key, taken);
        if (!taken) {
            model_.erase(before);
            model_[after] = {amount, opener.entry};
        }
        opener.place = taken ? before : after;
        QCOMPARE(here(opener), *opener.place);
    }

    void erase(Opener& opener) {
        seek_greater(opener);
        if (!opener.place) return;
        opener.odeme.Delete();
        model_.erase(*opener.place);
    }

    void seek_equal(Opener& opener) {
        const Key key = random_key();
        opener.odeme.Seek("=", {key.first, key.second});
        QCOMPARE(opener.odeme.NoMatch(), !model_.contains(key));
        expect(opener, model_.find(key));
    }

    void seek_greater(Opener& opener) {
        const Key key = random_key();
        opener.odeme.Seek(">", {key.first, key.second});
        const auto row = model_.upper_bound(key);
        QCOMPARE(opener.odeme.NoMatch(), row == model_.end());
        expect(opener, row);
    }

    void scan(Opener& opener) {
        const int student = random_key().first;
        std::vector<int> amounts, expected;
        store::scan_prefix(opener.odeme, {student},
                           [&] { amounts.push_back(static_cast<int>(opener.odeme["TUTAR"].whole_number())); });
        for (const auto& [key, row] : model_)
            if (key.first == student) expected.push_back(row.amount);
        QCOMPARE(amounts, expected);
        opener.place.reset();
    }

    void move_next(Opener& opener) {
        if (!opener.place) return;
        opener.odeme.MoveNext();
        const auto row = model_.upper_bound(*opener.place);
        QCOMPARE(opener.odeme.Eof(), row == model_.end());
        expect(opener, row);
    }

    Key here(Opener& opener) {
        return {static_cast<int>(opener.odeme["ONO"].whole_number()), opener.odeme["VADE"].text()};
    }

    std::mt19937 random_;
    Opener openers_[2];
    Model model_;
    int last_ = 0;
};

}  // namespace

class ModelTest : public QObject {
    Q_OBJECT

private slots:
    void two_openers_agree_with_a_map_data() {
        QTest::addColumn<unsigned>("seed");
        const unsigned walks = qEnvironmentVariableIsSet("KURVO_LONG_TESTS") ? 50 : 3;
        for (unsigned seed = 1; seed <= walks; ++seed) QTest::addRow("seed %u", seed) << seed;
    }

    void two_openers_agree_with_a_map() {
        QFETCH(unsigned, seed);
        const Office office;
        Walk walk(office.file, seed);
        for (int step = 0; step < 1000 && !QTest::currentTestFailed(); ++step) walk.step();
    }
};

static const Registered<ModelTest> registered;
#include "model_test.moc"
