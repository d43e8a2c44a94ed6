#pragma once

#include <QVector>
#include <QWidget>

class QLabel;
class QTimer;

/// The status bar of the frame: panels numbered from 1. A panel shows a text, the date or the time. Date and
/// time follow the clock by themselves.
class StatusBar : public QWidget {
    Q_OBJECT

public:
    enum class Style { Text, Date, Time };

    explicit StatusBar(const QString& name, QWidget* parent = nullptr);

    /// Adds a panel at the right; `stretch` lets it take the remaining space.
    void addPanel(Style style, const QString& text, const QString& tip, bool stretch = false);
    int panelCount() const { return static_cast<int>(m_panels.size()); }
    QString panelText(int number) const;
    void setPanelText(int number, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Panel {
        Style style;
        QLabel* label;
    };
    void showTime();

    QVector<Panel> m_panels;
    QTimer* m_timer;
};
