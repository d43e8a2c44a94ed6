#include "Vergleich.h"

#include "ComboBox.h"
#include "Eingaben.h"
#include "TextBox.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

Vergleich Vergleich::neu(const QString& list, const QString& box, const QString& spoken, QWidget* parent) {
    const Vergleich made{new ComboBox(list, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, parent),
                         new TextBox(box, parent)};
    for (const QString& zeichen : {u"="_s, u">"_s, u">="_s, u"<"_s, u"<="_s, u"<>"_s})
        made.zeichen->AddItem(zeichen);
    made.zeichen->setAccessibleName(spoken + u", Vergleich"_s);
    made.wert->setAccessibleName(spoken);
    made.leere();
    made.setEnabled(false);
    return made;
}

bool Vergleich::isEmpty() const { return zeichen->currentText().isEmpty() && wert->text().isEmpty(); }

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
    if (second.isEmpty()) return modRun::erstesLeere({first.zeichen, first.wert});
    return modRun::erstesLeere({first.zeichen, first.wert, second.zeichen, second.wert});
}
