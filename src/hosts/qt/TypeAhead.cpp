#include "hosts/qt/TypeAhead.h"

namespace vantorel {
namespace {

constexpr qint64 pauseInMilliseconds = 1000;

}  // namespace

bool TypeAhead::isSearching() const
{
    return _time.isValid() && _time.elapsed() <= pauseInMilliseconds;
}

int TypeAhead::find(const QString& typed, int current, int count,
                    const std::function<bool(int, const QString&)>& isNamed)
{
    if (!isSearching()) _typed.clear();
    _time.start();
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
