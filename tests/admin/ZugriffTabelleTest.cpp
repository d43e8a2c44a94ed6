#include "Benutzer.h"
#include "DataTable.h"
#include "Screens.h"
#include "Session.h"

#include <gtest/gtest.h>

namespace {

bool isMarked(DataTable& grid, int row) {
    grid.publish();
    return grid.selectionModel()->isRowSelected(row, QModelIndex());
}

TEST(GroupsGrid, KeepsTheMarkOfARowBelowTheCountOfUsersWhenItLosesTheFocus) {
    beginSession(QString());
    Benutzer& form = screen<Benutzer>();
    form.tblBenutzer->appendRow({1, u"Admin"_qs, u""_qs, u"Gruppe"_qs});
    for (const int gnr : {1, 2}) form.tblZugriff->appendRow({gnr, u"Gruppe"_qs});
    form.tblZugriff->setSelectionMode(QAbstractItemView::MultiSelection);
    form.tblZugriff->selectRows(0, 2, true);

    Q_EMIT form.tblZugriff->OnGridLostFocus();

    EXPECT_FALSE(isMarked(*form.tblZugriff, 0));
    EXPECT_TRUE(isMarked(*form.tblZugriff, 1));
    unload<Benutzer>();
}

} // namespace
