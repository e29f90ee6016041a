#include "snippets/SnippetReader.h"

#include "text/ASCII.h"

#include <algorithm>

namespace vantorel {
namespace {

/// The word of a format that is any name.
constexpr std::u16string_view anyName = u"accent";
constexpr std::size_t longestName = 100;
constexpr std::size_t mostValues = 4;

bool isBlankOrLineEnd(char16_t unit)
{
    return isBlank(unit) || unit == u'\n' || unit == u'\r';
}

bool isWordUnit(char16_t unit)
{
    return isLetterOrDigit(unit) || unit == u'_' || unit >= 0x80;
}

/// Whether programs may have blanks on both sides of a unit.
bool standsFreely(char16_t unit)
{
    constexpr std::u16string_view free = u"()[]{}<>,;:=/*";
    return free.find(unit) != std::u16string_view::npos;
}

std::size_t blanksAt(std::u16string_view text, std::size_t place)
{
    std::size_t count = 0;
    while (place + count < text.size() && count < widestFormatField &&
           isBlankOrLineEnd(text[place + count]))
        ++count;
    return count;
}

/// Returns the length of the name at a place. Names of CSS contain "-"; with `endsAtHyphen`, the
/// format goes on with one.
std::size_t nameAt(std::u16string_view text, std::size_t place, bool endsAtHyphen)
{
    if (place >= text.size() || isDigit(text[place])) return 0;
    std::size_t length = 0;
    while (place + length < text.size() && length <= longestName &&
           (isWordUnit(text[place + length]) || (text[place + length] == u'-' && !endsAtHyphen)))
        ++length;
    return length <= longestName ? length : 0;
}

}  // namespace

/// The state of a match. A number that touches the next one is tried at each length that it can
/// have, and the colours that result are compared.
struct SnippetReader::Matching {
    std::u16string_view text;
    std::array<NumberPattern::Number, mostValues> numbers{};
    std::optional<Match> found;
    bool isAmbiguous = false;
};

SnippetReader::SnippetReader(const QTXCodeSnippet& snippet)
{
    const auto values = valuesOfVarForm(snippet.varFormSnippet().value_or(u""));
    const std::u16string format = snippet.formatStringSnippet().value_or(u"");
    if (!values) {
        add(Obstacle::Kind::unknownForm, SnippetValue::Part::rgb);
    } else if (format.size() > longestReadableFormat) {
        add(Obstacle::Kind::tooLong, SnippetValue::Part::rgb);
    } else {
        _values = *values;
        compile(format);
    }
}

std::optional<char16_t> SnippetReader::firstUnit() const
{
    if (_steps.empty() || _steps.front().kind != Step::Kind::unit) return std::nullopt;
    return _steps.front().edge;
}

void SnippetReader::add(Obstacle::Kind kind, SnippetValue::Part part)
{
    _obstacles.push_back({kind, part});
}

void SnippetReader::compile(std::u16string_view format)
{
    FormatPartReader parts(format, _values.size());
    for (FormatPart part; parts.next(part);) {
        if (part.isConversion) {
            addNumber(part.conversion);
        } else {
            addText(part.text);
        }
    }
    for (std::size_t i = _numbers.size(); i < _values.size(); ++i)
        add(Obstacle::Kind::missing, _values[i].part);
    if (!hasColor()) {
        _steps.clear();
        return;
    }
    findTouchingNumbers();
    findSuffix();
    findNeedOfPoint();
}

void SnippetReader::addNumber(const FormatConversion& conversion)
{
    const SnippetValue& value = _values[_numbers.size()];
    const NumberPattern& number = _numbers.emplace_back(conversion, value);
    using Loss = NumberPattern::Loss;
    constexpr std::pair<Loss, Obstacle::Kind> losses[] = {
        {Loss::character, Obstacle::Kind::character},
        {Loss::wholeNumber, Obstacle::Kind::wholeNumber},
        {Loss::cutText, Obstacle::Kind::cutText},
        {Loss::highBits, Obstacle::Kind::highBits}};
    for (const auto& [loss, kind] : losses)
        if (number.loss() == loss) add(kind, value.part);
    Step step;
    step.kind = Step::Kind::number;
    step.number = static_cast<std::uint8_t>(_numbers.size() - 1);
    addStep(step);
}

/// Whether all values that a colour needs are in the format and can be read. The opacity may be
/// missing, and as a whole number it is 1 at least for opaque colours.
bool SnippetReader::hasColor() const
{
    return std::ranges::none_of(_obstacles, [](const Obstacle& obstacle) {
        const bool isHarmless = obstacle.kind == Obstacle::Kind::missing ||
                                obstacle.kind == Obstacle::Kind::wholeNumber;
        return obstacle.part != SnippetValue::Part::opacity || !isHarmless;
    });
}

/// Whole numbers are read as fractions only beside a number with a decimal point, unless the format
/// itself writes whole numbers.
void SnippetReader::findNeedOfPoint()
{
    bool hasFractions = false;
    bool alwaysHavePoints = true;
    for (std::size_t i = 0; i < _numbers.size(); ++i) {
        if (!_values[i].isFraction) continue;
        hasFractions = hasFractions || _values[i].part != SnippetValue::Part::opacity;
        alwaysHavePoints = alwaysHavePoints && _numbers[i].alwaysHasPoint();
    }
    _needsPoint = hasFractions && alwaysHavePoints;
}

void SnippetReader::addText(std::u16string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isBlankOrLineEnd(text[i])) {
            _hasBlank = true;
            continue;
        }
        Step step;
        step.edge = text[i];
        const auto isWordAt = [&](std::size_t place) {
            return place < text.size() && isWordUnit(text[place]);
        };
        const auto word = text.substr(i, anyName.size());
        if (equalIgnoringCase(word, anyName) && !isWordAt(i - 1) && !isWordAt(i + word.size())) {
            step.kind = Step::Kind::name;
            step.edge = u'_';
            i += word.size() - 1;
        } else {
            _hasOwnText = _hasOwnText || isWordUnit(step.edge) || step.edge == u'#';
        }
        addStep(step);
    }
}

void SnippetReader::addStep(Step step)
{
    if (!_steps.empty()) {
        const Step& last = _steps.back();
        if (_hasBlank) {
            const bool areWords = isWordUnit(last.edge) && isWordUnit(step.edge);
            step.blanksBefore = areWords ? Blanks::required : Blanks::allowed;
        } else if (standsFreely(last.edge) || standsFreely(step.edge)) {
            step.blanksBefore = Blanks::allowed;
        }
    }
    _hasBlank = false;
    _steps.push_back(step);
}

void SnippetReader::findTouchingNumbers()
{
    for (std::size_t i = 0; i + 1 < _steps.size(); ++i) {
        Step& step = _steps[i];
        const Step& next = _steps[i + 1];
        if (step.kind != Step::Kind::number || next.blanksBefore == Blanks::required) continue;
        const NumberPattern& number = _numbers[step.number];
        if (next.kind == Step::Kind::unit && !number.isContinuedBy(next.edge)) continue;
        step.touchesNext = number.hasBounds();
        const bool hasOneLength =
            number.paddedLength(number.fewestUnits()) == number.paddedLength(number.mostUnits());
        if (!number.hasBounds() || !hasOneLength)
            add(Obstacle::Kind::notSeparated, _values[step.number].part);
    }
}

/// Finds whether the line ends in letters after a number, as in "%dm". They end the line even where
/// a word follows.
void SnippetReader::findSuffix()
{
    auto step = _steps.crbegin();
    while (step != _steps.crend() && step->kind == Step::Kind::unit && isWordUnit(step->edge) &&
           step->blanksBefore == Blanks::none)
        ++step;
    _endsInSuffix =
        step != _steps.crbegin() && step != _steps.crend() && step->kind == Step::Kind::number;
}

bool SnippetReader::mayBeginAt(std::u16string_view text, std::size_t place) const
{
    if (place == 0 || !isWordUnit(_steps.front().edge)) return true;
    const char16_t before = text[place - 1];
    if (isWordUnit(before)) return false;
    constexpr std::u16string_view ofNumbers = u".#+-";
    return _steps.front().kind != Step::Kind::number ||
           ofNumbers.find(before) == std::u16string_view::npos;
}

bool SnippetReader::mayEndAt(std::u16string_view text, std::size_t place) const
{
    if (place >= text.size() || !isWordUnit(_steps.back().edge) || _endsInSuffix) return true;
    if (isWordUnit(text[place])) return false;
    if (_steps.back().kind != Step::Kind::number || text[place] != u'.') return true;
    return place + 1 >= text.size() || !isDigit(text[place + 1]);
}

std::optional<SnippetReader::Match> SnippetReader::matchAt(std::u16string_view text,
                                                           std::size_t place) const
{
    if (_steps.empty() || !mayBeginAt(text, place)) return std::nullopt;
    Matching matching;
    matching.text = text;
    follow(0, place, matching);
    return matching.isAmbiguous ? std::nullopt : matching.found;
}

void SnippetReader::follow(std::size_t step, std::size_t place, Matching& matching) const
{
    const std::u16string_view text = matching.text;
    for (; step < _steps.size(); ++step) {
        const Step& next = _steps[step];
        if (next.blanksBefore != Blanks::none) {
            const std::size_t blanks = blanksAt(text, place);
            if (blanks == 0 && next.blanksBefore == Blanks::required) return;
            place += blanks;
        }
        if (next.kind == Step::Kind::number) {
            followNumber(step, place, matching);
            return;
        }
        std::size_t length = 1;
        if (next.kind == Step::Kind::name) {
            const bool endsAtHyphen = step + 1 < _steps.size() && _steps[step + 1].edge == u'-';
            length = nameAt(text, place, endsAtHyphen);
            if (length == 0) return;
        } else if (place >= text.size() || text[place] != next.edge) {
            return;
        }
        place += length;
    }
    finish(place, matching);
}

void SnippetReader::followNumber(std::size_t step, std::size_t place, Matching& matching) const
{
    const Step& here = _steps[step];
    const NumberPattern& pattern = _numbers[here.number];
    const std::u16string_view rest = matching.text.substr(place);
    const auto tryLength = [&](std::size_t length) {
        const auto number = pattern.read(rest.substr(0, length));
        if (!number) return;
        matching.numbers[here.number] = *number;
        follow(step + 1, place + length, matching);
    };
    // The padding of the first number precedes the match.
    const bool isFirst = step == 0;
    const std::size_t blanks = pattern.isPaddedBefore() && !isFirst ? blanksAt(rest, 0) : 0;
    if (!here.touchesNext) {
        const std::size_t units = pattern.numberAt(rest.substr(blanks));
        std::size_t length = blanks + units;
        if (pattern.isPaddedAfter() && step + 1 < _steps.size()) length += blanksAt(rest, length);
        // After a number that touches this one, the padding shows where this one begins.
        const bool needsPadding =
            pattern.isPaddedBefore() && !isFirst && _steps[step - 1].touchesNext;
        if (!needsPadding || length >= pattern.paddedLength(units)) tryLength(length);
        return;
    }
    for (std::size_t units = pattern.mostUnits() + 1; units-- > pattern.fewestUnits();) {
        std::size_t length = pattern.paddedLength(units);
        if (pattern.isPaddedBefore()) {
            if (!isFirst && blanks + units != length) continue;
            length = blanks + units;
        }
        if (length <= rest.size()) tryLength(length);
        if (matching.isAmbiguous || (isFirst && pattern.isPaddedBefore() && matching.found)) return;
    }
}

void SnippetReader::finish(std::size_t place, Matching& matching) const
{
    if (!mayEndAt(matching.text, place)) return;
    const std::span numbers(matching.numbers.data(), _numbers.size());
    if (_needsPoint && std::ranges::none_of(numbers, &NumberPattern::Number::hasPoint)) return;
    HostColor::Components color;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        using Part = SnippetValue::Part;
        const double value = numbers[i].value;
        const double channel = _values[i].isFraction ? value : value / 255;
        const auto byte = [&](int shift) {
            return static_cast<double>(static_cast<std::uint64_t>(value) >> shift & 0xFF) / 255;
        };
        switch (_values[i].part) {
            case Part::red:
                color.red = channel;
                break;
            case Part::green:
                color.green = channel;
                break;
            case Part::blue:
                color.blue = channel;
                break;
            case Part::opacity:
                if (_numbers[i].loss() != NumberPattern::Loss::none && value < 1) return;
                color.alpha = channel;
                break;
            case Part::argb:
                color.alpha = byte(24);
                [[fallthrough]];
            case Part::rgb:
                color.red = byte(16);
                color.green = byte(8);
                color.blue = byte(0);
                break;
        }
    }
    const Match match{
        place, HostColor::colorWithCalibratedRed(color.red, color.green, color.blue, color.alpha)};
    if (!matching.found) {
        matching.found = match;
    } else if (matching.found->color != match.color) {
        matching.isAmbiguous = true;
    }
}

}  // namespace vantorel
