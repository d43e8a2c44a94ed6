#include "SafetyCopy.h"
#include "StoreFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

class SafetyCopyTest : public StoreTest {
protected:
    SafetyCopyTest() { database.Close(); }

    QString folder() const { return file(u"Sicherung"_s); }
    QStringList copies() const { return QDir(folder()).entryList({u"*.mdb"_s}, QDir::Files, QDir::Name); }

    void change() const { connectTo(path())->execute("UPDATE System SET FJahr = FJahr + 1"); }

    /// Makes a copy at noon of this day of May 2026.
    void keep(int day) const {
        keepSafetyCopy(path(), cursors::passwordOf(connect()), folder(),
                       QDate(2026, 5, day).startOfDay().addSecs(43200));
    }

    static QString name(int day) {
        return u"uw01 2026-05-%1 12.00.00.mdb"_s.arg(day, 2, 10, QLatin1Char('0'));
    }
};

TEST_F(SafetyCopyTest, TheTenNewestStayWhateverTheClockSaidInBetween) {
    ASSERT_TRUE(QDir().mkdir(folder()));
    constexpr QFileDevice::Permissions ownerOnly(QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::setPermissions(path(), ownerOnly | QFile::ReadUser | QFile::WriteUser));
    // A leftover of a killed process, and a copy that the user keeps.
    for (const QString& name : {u"uw01.neu.AbCdEf"_s, u"uw01 2026-05-01 12.00.00 AUFHEBEN.mdb"_s})
        ASSERT_TRUE(QFile(folder() + u'/' + name).open(QIODevice::WriteOnly));
    for (int day = 1; day <= 12; ++day) {
        change();
        keep(day == 6 ? 31 : day);
    }
    QStringList expected{u"uw01 2026-05-01 12.00.00 AUFHEBEN.mdb"_s};
    for (int day : {2, 3, 4, 5, 7, 8, 9, 10, 11, 12}) expected += name(day);
    EXPECT_EQ(copies(), expected);
    EXPECT_EQ(QDir(folder()).count(), copies().size() + 2u) << "with . and ..";
    EXPECT_EQ(QFile::permissions(folder() + u'/' + name(12)), QFile::permissions(path()));
    keep(13);
    EXPECT_EQ(copies(), expected) << "nothing has changed";
}
