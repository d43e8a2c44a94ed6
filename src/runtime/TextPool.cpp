#include "TextPool.h"

#include <QHashFunctions>
#include <algorithm>

namespace {

constexpr std::size_t firstSlots = 64;
/// Qt's header before the characters of a text.
constexpr std::size_t textHead = 16;

quint32 hashOf(const QString& text) {
    // With a seed Qt uses the processor's instructions for hashing.
    constexpr std::size_t seed = 1;
    const std::size_t hash = qHash(QStringView(text), seed);
    return static_cast<quint32>(hash ^ (quint64(hash) >> 32));
}

} // namespace

quint32 TextPool::numberOf(const QString& text) {
    if (m_texts.size() * 4 >= m_slots.size() * 3) grow();
    const quint32 hash = hashOf(text);
    Slot& slot = m_slots[slotOf(text, hash)];
    if (slot.next == 0) {
        m_texts.push_back(text);
        slot = {hash, static_cast<quint32>(m_texts.size())};
    }
    return slot.next - 1;
}

std::optional<quint32> TextPool::find(const QString& text) const {
    if (m_slots.empty()) return std::nullopt;
    const Slot& slot = m_slots[slotOf(text, hashOf(text))];
    if (slot.next == 0) return std::nullopt;
    return slot.next - 1;
}

void TextPool::clear() {
    // Swapped away, since clear() alone would keep the memory of a table that was large once.
    std::vector<QString>().swap(m_texts);
    std::vector<Slot>().swap(m_slots);
}

std::size_t TextPool::memoryInUse() const {
    std::size_t bytes = m_texts.capacity() * sizeof(QString) + m_slots.capacity() * sizeof(Slot);
    for (const QString& text : m_texts) bytes += textHead + std::size_t(text.capacity() + 1) * sizeof(QChar);
    return bytes;
}

std::size_t TextPool::slotOf(const QString& text, quint32 hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = hash & mask;
    for (; m_slots[place].next != 0; place = (place + 1) & mask) {
        if (m_slots[place].hash == hash && m_texts[m_slots[place].next - 1] == text) break;
    }
    return place;
}

void TextPool::grow() {
    std::vector<Slot> old(std::max(firstSlots, m_slots.size() * 2));
    old.swap(m_slots);
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot& slot : old) {
        if (slot.next == 0) continue;
        std::size_t place = slot.hash & mask;
        while (m_slots[place].next != 0) place = (place + 1) & mask;
        m_slots[place] = slot;
    }
}
