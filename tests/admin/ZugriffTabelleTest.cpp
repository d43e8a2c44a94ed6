#include "Benutzer.h"
#include "DataTable.h"
#include "Screens.h"
#include "Session.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool isMarked(DataTable& grid, int row) {
    grid.publish();
    return grid.selectionModel()->isRowSelected(row, QModelIndex());
}

TEST(GroupsGrid, KeepsTheMarkOfARowBelowTheCountOfUsersWhenItLosesTheFocus) {
    beginSession(QString());
    Benutzer& screen = the<Benutzer>();
    screen.tblBenutzer->appendRow({1, u"Admin"_s, u""_s, u"Gruppe"_s});
    for (const int gnr : {1, 2}) screen.tblZugriff->appendRow({gnr, u"Gruppe"_s});
    screen.tblZugriff->setSelectionMode(QAbstractItemView::MultiSelection);
    screen.tblZugriff->selectRows(0, 2, true);

    Q_EMIT screen.tblZugriff->OnGridLostFocus();

    EXPECT_FALSE(isMarked(*screen.tblZugriff, 0));
    EXPECT_TRUE(isMarked(*screen.tblZugriff, 1));
    unload<Benutzer>();
}

} // namespace
