#pragma once

#include <QString>
#include <QStringView>

/// A pattern for numbers: literal characters before and behind one run of placeholders. "0" is a digit that
/// is always written, "#" one that is written only if the number has it.
///
/// "." and "," within the run separate decimals or thousands, in whichever language the pattern was written.
/// The last one separates decimals, unless a "#" comes before a "0" behind it ("#.##0"), which would be
/// senseless for decimals. All others separate thousands. The result always has German separators.
class NumberPattern {
public:
    explicit NumberPattern(QStringView pattern);

    /// Rounds half away from zero on the decimal text of the number. A number rounded to zero has no minus.
    QString textOf(double number) const;

private:
    void readPlaces(QStringView places);

    QString m_prefix;
    QString m_suffix;
    int m_minIntegerDigits = 0;
    int m_minDecimals = 0;
    int m_maxDecimals = 0;
    bool m_hasPlaces = false;
    bool m_hasComma = false;
    bool m_isGrouped = false;
};
