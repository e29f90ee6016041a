#include "colormath/DeltaE2000.h"

#include <cmath>
#include <numbers>

namespace vantorel {
namespace {

constexpr double degree = std::numbers::pi / 180;

double seventhPower(double x)
{
    const double cube = x * x * x;
    return cube * cube * x;
}

/// How much a chroma is above that of the colours for which Lab is even: 0 for greys, towards 1.
double highChroma(double chroma)
{
    const double power = seventhPower(chroma);
    return std::sqrt(power / (power + seventhPower(25)));
}

double hueOf(double a, double b)
{
    if (a == 0 && b == 0) return 0;
    return normalizedHue(std::atan2(b, a) / degree);
}

double lightnessWeight(double lightness)
{
    const double squared = (lightness - 50) * (lightness - 50);
    return 1 + 0.015 * squared / std::sqrt(20 + squared);
}

}  // namespace

// The names are those of Sharma, Wu and Dalal, "The CIEDE2000 color-difference formula", 2005.
double deltaE2000(const ColorTriple& first, const ColorTriple& second)
{
    const double meanC = (std::hypot(first[1], first[2]) + std::hypot(second[1], second[2])) / 2;
    const double g = 1.5 - highChroma(meanC) / 2;
    const double a1 = first[1] * g;
    const double a2 = second[1] * g;
    const double c1 = std::hypot(a1, first[2]);
    const double c2 = std::hypot(a2, second[2]);
    const double h1 = hueOf(a1, first[2]);
    const double h2 = hueOf(a2, second[2]);

    double deltaHue = 0;
    double meanHue = h1 + h2;
    if (c1 * c2 != 0) {
        deltaHue = h2 - h1;
        if (std::fabs(deltaHue) > 180) {
            deltaHue += deltaHue > 0 ? -360 : 360;
            meanHue += meanHue < 360 ? 360 : -360;
        }
        meanHue /= 2;
    }
    const double deltaL = second[0] - first[0];
    const double deltaC = c2 - c1;
    const double deltaH = 2 * std::sqrt(c1 * c2) * std::sin(deltaHue / 2 * degree);

    const double meanCPrime = (c1 + c2) / 2;
    const double t =
        1 - 0.17 * std::cos((meanHue - 30) * degree) + 0.24 * std::cos(2 * meanHue * degree) +
        0.32 * std::cos((3 * meanHue + 6) * degree) - 0.20 * std::cos((4 * meanHue - 63) * degree);
    const double sl = lightnessWeight((first[0] + second[0]) / 2);
    const double sc = 1 + 0.045 * meanCPrime;
    const double sh = 1 + 0.015 * meanCPrime * t;
    const double fromBlue = (meanHue - 275) / 25;
    const double rt =
        -2 * highChroma(meanCPrime) * std::sin(60 * std::exp(-fromBlue * fromBlue) * degree);
    const double l = deltaL / sl;
    const double c = deltaC / sc;
    const double h = deltaH / sh;
    // Rounding can make the sum slightly negative.
    return std::sqrt(std::fmax(l * l + c * c + h * h + rt * c * h, 0));
}

bool mayDifferByLessThan(double limit, const ColorTriple& first, const ColorTriple& second)
{
    if (std::fabs(first[0] - second[0]) >
        limit * lightnessWeight((first[0] + second[0]) / 2) * (1 + 1e-9)) {
        return false;
    }
    // The rotation in blue can hide at most this share of a difference of chroma and hue. b does
    // not depend on the mean chroma, and chroma at most grows by half.
    constexpr double leastShare = 0.366;
    const double meanC = (std::hypot(first[1], first[2]) + std::hypot(second[1], second[2])) / 2;
    const double weight = 1 + 0.045 * 1.5 * meanC;
    return std::fabs(first[2] - second[2]) <= limit / leastShare * weight;
}

}  // namespace vantorel
