// Equal short texts of a file as one QString: dates, codes and class groups come again in row after row.
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace store {

class ShortTexts {
public:
    // Longer texts are made anew each time.
    QString of(std::string_view utf8) {
        if (utf8.size() > longest) return made(utf8);
        Bytes bytes{};
        std::memcpy(bytes.data(), utf8.data(), utf8.size());
        Entry& entry = entries_[place(bytes)];
        if (entry.size != utf8.size() || entry.bytes != bytes) entry = {bytes, utf8.size(), made(utf8)};
        return entry.text;
    }

private:
    static constexpr std::size_t longest = 16;  // bytes
    using Bytes = std::array<char, longest>;
    struct Entry {
        Bytes bytes{};
        std::size_t size = longest + 1;  // none yet
        QString text;
    };

    static QString made(std::string_view utf8) {
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    }
    static std::size_t place(const Bytes& bytes) {
        std::uint64_t first = 0, second = 0;
        std::memcpy(&first, bytes.data(), 8);
        std::memcpy(&second, bytes.data() + 8, 8);
        constexpr std::uint64_t spread = 0x9E3779B97F4A7C15;
        return ((first ^ (second * spread >> 7)) * spread) >> 56;
    }

    std::array<Entry, 256> entries_;
};

}  // namespace store
