#include "hosts/common/TypeAhead.h"

namespace vantorel {
namespace {

constexpr std::chrono::seconds pause{1};

bool isPrintable(char16_t c)
{
    return c >= u' ' && !(c >= 0x7F && c <= 0x9F);
}

}  // namespace

bool TypeAhead::isSearching() const
{
    return _lastLetter && _clock() - *_lastLetter <= pause;
}

bool TypeAhead::takes(std::u16string_view typed) const
{
    if (typed.empty() || !isPrintable(typed.front())) return false;
    return typed.front() != u' ' || isSearching();
}

int TypeAhead::find(std::u16string_view typed, int current, int count,
                    const std::function<bool(int, const std::u16string&)>& isNamed)
{
    if (!isSearching()) _typed.clear();
    _lastLetter = _clock();
    const bool sameLetter = _typed == typed;
    if (!sameLetter) _typed += typed;
    const int first = current + (sameLetter || _typed.size() == 1 ? 1 : 0);
    for (int i = 0; i < count; ++i) {
        const int index = (first + i + count) % count;
        if (isNamed(index, _typed)) return index;
    }
    return -1;
}

}  // namespace vantorel
