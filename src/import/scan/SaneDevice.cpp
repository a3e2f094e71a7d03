// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/SaneDevice.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "import/scan/SaneWords.h"

namespace zol {

namespace {

// Whatever a driver says: no device has more, and no list of one is longer.
constexpr SANE_Int MaxOptions = 4096;
constexpr SANE_Int MaxListLength = 1024;
constexpr SANE_Int MaxTextSize = 4096;

double NumberOf(const SANE_Option_Descriptor& option, SANE_Word word) {
    return option.type == SANE_TYPE_FIXED ? SANE_UNFIX(word) : static_cast<double>(word);
}

SANE_Word WordOf(const SANE_Option_Descriptor& option, double number) {
    constexpr double least = -2147483647.0;
    constexpr double greatest = 2147483647.0;
    const double scale = option.type == SANE_TYPE_FIXED ? 1 << SANE_FIXED_SCALE_SHIFT : 1.0;
    return static_cast<SANE_Word>(std::lround(std::clamp(number * scale, least, greatest)));
}

/// Of a word list, whose first word is its length.
std::vector<SANE_Word> ListOf(const SANE_Option_Descriptor& option) {
    if (option.constraint_type != SANE_CONSTRAINT_WORD_LIST ||
        option.constraint.word_list == nullptr) {
        return {};
    }
    const SANE_Word* const list = option.constraint.word_list;
    const SANE_Word length = std::clamp(*list, 0, MaxListLength);
    return {list + 1, list + 1 + length};
}

const SANE_Range* RangeOf(const SANE_Option_Descriptor& option) {
    return option.constraint_type == SANE_CONSTRAINT_RANGE ? option.constraint.range : nullptr;
}

SANE_Word NearestInRange(const SANE_Range& range, SANE_Word wanted) {
    const std::int64_t least = range.min;
    const std::int64_t greatest = std::max(range.min, range.max);
    const std::int64_t inside = std::clamp<std::int64_t>(wanted, least, greatest);
    if (range.quant <= 0) {
        return static_cast<SANE_Word>(inside);
    }
    const std::int64_t steps = (inside - least + range.quant / 2) / range.quant;
    const std::int64_t stepped = least + steps * range.quant;
    return static_cast<SANE_Word>(stepped > greatest ? stepped - range.quant : stepped);
}

SANE_Word NearestInList(const std::vector<SANE_Word>& list, SANE_Word wanted) {
    const auto away = [wanted](SANE_Word word) {
        return std::abs(static_cast<std::int64_t>(word) - wanted);
    };
    return *std::min_element(list.begin(), list.end(), [&away](SANE_Word one, SANE_Word other) {
        return away(one) < away(other);
    });
}

SANE_Word NearestAllowed(const SANE_Option_Descriptor& option, SANE_Word wanted) {
    if (const SANE_Range* const range = RangeOf(option)) {
        return NearestInRange(*range, wanted);
    }
    const std::vector<SANE_Word> list = ListOf(option);
    return list.empty() ? wanted : NearestInList(list, wanted);
}

/// The device's own texts, in its own characters.
std::vector<const char*> RawTextsOf(const SANE_Option_Descriptor& option) {
    std::vector<const char*> texts;
    if (option.type != SANE_TYPE_STRING || option.constraint_type != SANE_CONSTRAINT_STRING_LIST ||
        option.constraint.string_list == nullptr) {
        return texts;
    }
    const SANE_String_Const* text = option.constraint.string_list;
    while (*text != nullptr && texts.size() < static_cast<std::size_t>(MaxListLength)) {
        texts.push_back(*text++);
    }
    return texts;
}

} // namespace

std::optional<SaneDevice::Option> SaneDevice::Find(const char* name) const {
    SANE_Int count = 0;
    if (m_sane.Control(m_handle, 0, SANE_ACTION_GET_VALUE, &count) != SANE_STATUS_GOOD) {
        return std::nullopt;
    }
    count = std::min(count, MaxOptions);
    for (SANE_Int number = 1; number < count; ++number) {
        const SANE_Option_Descriptor* const option = m_sane.GetOption(m_handle, number);
        if (option != nullptr && option->name != nullptr && std::strcmp(option->name, name) == 0 &&
            SANE_OPTION_IS_ACTIVE(option->cap) && SANE_OPTION_IS_SETTABLE(option->cap)) {
            return Option{number, option};
        }
    }
    return std::nullopt;
}

std::optional<SaneDevice::Option> SaneDevice::FindNumber(const char* name) const {
    auto option = Find(name);
    if (option && (option->Is->type == SANE_TYPE_INT || option->Is->type == SANE_TYPE_FIXED) &&
        option->Is->size == static_cast<SANE_Int>(sizeof(SANE_Word))) {
        return option;
    }
    return std::nullopt;
}

std::optional<double> SaneDevice::GetNumber(const char* name) const {
    const auto option = FindNumber(name);
    SANE_Word word = 0;
    if (!option || m_sane.Control(m_handle, option->Number, SANE_ACTION_GET_VALUE, &word) !=
                       SANE_STATUS_GOOD) {
        return std::nullopt;
    }
    return NumberOf(*option->Is, word);
}

std::string SaneDevice::GetText(const char* name) const {
    const auto option = Find(name);
    if (!option || option->Is->type != SANE_TYPE_STRING || option->Is->size < 1 ||
        option->Is->size > MaxTextSize) {
        return {};
    }
    // One more, for a driver that forgets the end of the text.
    std::vector<char> text(static_cast<std::size_t>(option->Is->size) + 1, '\0');
    if (m_sane.Control(m_handle, option->Number, SANE_ACTION_GET_VALUE, text.data()) !=
        SANE_STATUS_GOOD) {
        return {};
    }
    return SaneWords::TextOf(text.data());
}

std::optional<SANE_Unit> SaneDevice::UnitOf(const char* name) const {
    const auto option = FindNumber(name);
    return option ? std::optional(option->Is->unit) : std::nullopt;
}

std::optional<std::pair<double, double>> SaneDevice::BoundsOf(const char* name) const {
    const auto option = FindNumber(name);
    if (!option) {
        return std::nullopt;
    }
    if (const SANE_Range* const range = RangeOf(*option->Is)) {
        return std::pair(NumberOf(*option->Is, range->min), NumberOf(*option->Is, range->max));
    }
    const std::vector<SANE_Word> list = ListOf(*option->Is);
    if (list.empty()) {
        return std::nullopt;
    }
    const auto [least, greatest] = std::minmax_element(list.begin(), list.end());
    return std::pair(NumberOf(*option->Is, *least), NumberOf(*option->Is, *greatest));
}

std::vector<double> SaneDevice::NumbersOf(const char* name) const {
    std::vector<double> numbers;
    if (const auto option = FindNumber(name)) {
        for (const SANE_Word word : ListOf(*option->Is)) {
            numbers.push_back(NumberOf(*option->Is, word));
        }
    }
    return numbers;
}

std::vector<std::string> SaneDevice::TextsOf(const char* name) const {
    std::vector<std::string> texts;
    if (const auto option = Find(name)) {
        for (const char* const text : RawTextsOf(*option->Is)) {
            texts.push_back(SaneWords::TextOf(text));
        }
    }
    return texts;
}

SANE_Status SaneDevice::SetNumber(const char* name, double wanted) const {
    const auto option = FindNumber(name);
    if (!option) {
        return SANE_STATUS_UNSUPPORTED;
    }
    SANE_Word word = NearestAllowed(*option->Is, WordOf(*option->Is, wanted));
    return m_sane.Control(m_handle, option->Number, SANE_ACTION_SET_VALUE, &word);
}

SANE_Status SaneDevice::SetText(const char* name, const std::string& text) const {
    const auto option = Find(name);
    if (!option || option->Is->size < 1 || option->Is->size > MaxTextSize) {
        return SANE_STATUS_UNSUPPORTED;
    }
    for (const char* const allowed : RawTextsOf(*option->Is)) {
        if (SaneWords::TextOf(allowed) == text) {
            const std::size_t length = std::strlen(allowed) + 1;
            std::vector<char> value(std::max(length, static_cast<std::size_t>(option->Is->size)),
                                    '\0');
            std::copy_n(allowed, length, value.begin());
            return m_sane.Control(m_handle, option->Number, SANE_ACTION_SET_VALUE, value.data());
        }
    }
    return SANE_STATUS_INVAL;
}

SANE_Status SaneDevice::SetFlag(const char* name, bool on) const {
    const auto option = Find(name);
    if (!option || option->Is->type != SANE_TYPE_BOOL ||
        option->Is->size != static_cast<SANE_Int>(sizeof(SANE_Bool))) {
        return SANE_STATUS_UNSUPPORTED;
    }
    SANE_Bool value = on ? SANE_TRUE : SANE_FALSE;
    return m_sane.Control(m_handle, option->Number, SANE_ACTION_SET_VALUE, &value);
}

} // namespace zol
