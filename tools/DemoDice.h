#pragma once

#include <QtGlobal>
#include <cstddef>
#include <random>

/// Random numbers, the same on every machine. Uses none of the standard's distributions: the standard fixes
/// the numbers of the engine, but not those of a distribution.
class DemoDice {
public:
    explicit DemoDice(quint32 seed)
        : m_engine(seed) {}

    /// 0 to `count` - 1
    int below(int count) { return static_cast<int>(m_engine() % static_cast<quint32>(count)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool chance(int percent) { return below(100) < percent; }

    template<typename T, std::size_t N>
    const T& pick(const T (&list)[N]) {
        return list[below(static_cast<int>(N))];
    }

private:
    std::mt19937 m_engine;
};
