#include "Vergleich.h"

#include "ComboBox.h"
#include "Eingaben.h"
#include "TextBox.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

void Vergleich::richteEin(const QString& spoken) const {
    for (const QString& vergleich : {u"="_s, u">"_s, u">="_s, u"<"_s, u"<="_s, u"<>"_s})
        zeichen->AddItem(vergleich);
    zeichen->setAccessibleName(spoken + u", Vergleich"_s);
    wert->setAccessibleName(spoken);
    leere();
    setEnabled(false);
}

void Vergleich::leere() const {
    zeichen->setListIndex(-1);
    wert->setText(QString());
}

void Vergleich::setEnabled(bool on) const {
    zeichen->setEnabled(on);
    wert->setEnabled(on);
}

QWidget* erstesFalsche(const QCheckBox* filter, const Vergleich& first, const Vergleich& second) {
    if (!filter->isChecked()) return nullptr;
    if (second.zeichen->currentText().isEmpty() && second.wert->text().isEmpty())
        return modRun::erstesLeere({first.zeichen, first.wert});
    return modRun::erstesLeere({first.zeichen, first.wert, second.zeichen, second.wert});
}
