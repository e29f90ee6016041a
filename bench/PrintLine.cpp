#include <cstdio>

/// The least that a program with a line of output costs: C alone is called.
int main()
{
    return std::puts("#ff8000") < 0 ? 1 : 0;
}
