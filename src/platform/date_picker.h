// A date as dd.MM.yyyy with a calendar to drop down.
#pragma once

#include <QDateEdit>

#include <array>
#include <optional>

// Digits overwrite the day, then the month, then the year, in whatever order of months they pass; the date changes
// once, when it is taken: by Enter, by Tab, by any move of the focus. What is no date by then becomes the nearest
// one, a year of two digits one of this century. Enter goes on to the form's default button. The wheel changes nothing.
class DatePicker : public QDateEdit {
    Q_OBJECT

public:
    explicit DatePicker(QWidget* parent = nullptr);

    // Goes through day 1, month 1, so that no impossible date occurs between the steps. An impossible date
    // (month 0, 31 February) leaves the nearest possible one.
    void set_parts(int year, int month, int day);
    void set_key(const QString& yyyymmdd);  // by position
    QString key() const;                    // YYYYMMDD

    void take_typed();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // A date in the middle of being typed.
    struct Typing {
        std::array<QString, 3> parts;  // day, month, year as they stand in the box
        std::size_t part = 0;          // the one that digits go to
        bool overwrites = true;        // the next digit begins the part anew
        bool came_by_itself = false;   // the part before was full, so a point typed now changes nothing
    };
    void set_up_calendar();
    bool type(const QKeyEvent& key);  // false for a key that types nothing
    void type_digit(QChar digit);
    void type_point();
    void go_on();
    void show_typed();
    void show_text(const QString& text);

    std::optional<Typing> typing_;
    bool has_calendar_ = false;
};
