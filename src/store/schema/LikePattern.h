#pragma once

#include <QByteArrayView>
#include <QList>

/// A pattern of the LIKE operator, in which "*" stands for any characters. Matches without regard to case.
/// Texts are UTF-8.
class LikePattern {
public:
    explicit LikePattern(QByteArrayView pattern);

    bool matches(QByteArrayView text) const;

private:
    QList<char32_t> m_signs;
};
