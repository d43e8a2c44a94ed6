#pragma once

#include <QString>
#include <optional>
#include <vector>

/// The texts of a grid or a report, each held once: the names of fish, waters and months repeat on thousands
/// of rows. A text stays until clear(), also when no cell holds it any more.
class TextPool {
public:
    /// The number of this text, which is added if it is new.
    quint32 numberOf(const QString& text);
    std::optional<quint32> find(const QString& text) const;
    const QString& text(quint32 number) const { return m_texts[number]; }
    void clear();
    std::size_t memoryInUse() const;

private:
    struct Slot {
        quint32 hash = 0;
        quint32 next = 0; ///< number of the text plus one; 0 is a free slot
    };

    std::size_t slotOf(const QString& text, quint32 hash) const;
    void grow();

    std::vector<QString> m_texts;
    std::vector<Slot> m_slots; ///< open addressing; the size is a power of two
};
