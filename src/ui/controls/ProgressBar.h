#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

/// A progress bar that may be set for each of a million rows. It repaints at once, since the loops that use
/// it do not yield, but only when a further hundredth is reached and as often as an eye can follow: else the
/// bar would cost a short list more than the list.
class ProgressBar : public QProgressBar {
    Q_OBJECT

public:
    explicit ProgressBar(const QString& name, QWidget* parent = nullptr);

    void setMax(qint64 maximum); ///< at least 1; the value goes back to 0
    void setProgress(qint64 value);
    qint64 progress() const { return m_value; }

private:
    qint64 m_max = 1;
    qint64 m_value = 0;
    int m_reached = 0; ///< in hundredths; the bar on the screen may be behind
    QElapsedTimer m_sincePainted;
};
