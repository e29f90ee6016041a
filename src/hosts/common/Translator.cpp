#include "hosts/common/Translator.h"

#include <utility>

namespace vantorel {
namespace {

/// Never destroyed: a dialog may outlive the static objects of a program that ends.
Translator& translator()
{
    static auto* const current = new Translator;
    return *current;
}

}  // namespace

void setTranslator(Translator newTranslator)
{
    translator() = std::move(newTranslator);
}

const Translator& currentTranslator()
{
    return translator();
}

}  // namespace vantorel
