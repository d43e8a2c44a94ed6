#pragma once

#include <QString>

/// A club `times` as large as a real one in every respect. The real one has 300 members among 500 contacts,
/// and 20 years of catches and booked work hours.
struct ClubSize {
    int times = 1;

    constexpr int activeMembers() const { return 200 * times; } ///< all in one category
    constexpr int members() const { return 300 * times; }
    constexpr int contacts() const { return 500 * times; }
    constexpr int catches() const { return 11'000 * times; }
    constexpr int catchesOfThisMonth() const { return 1'000 * times; }
    constexpr int bookings() const { return 10'000 * times; }
};

constexpr ClubSize emptyClub{0};
constexpr ClubSize realClub{1};
/// The number of categories in a club of any size.
constexpr int clubCategories = 20;
constexpr int clubKinds = 30;
constexpr int clubWaters = 12;
/// The oldest catches and bookings are this many years old.
constexpr int clubYears = 20;

/// Makes the program folder of a club of this size.
void makeClub(const QString& folder, ClubSize size);
