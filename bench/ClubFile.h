#pragma once

#include <QString>

/// A club so many times as large as a real one, in every respect at once. The real one (1) has 300 members
/// among the contacts of a town, 20 years of catches and of booked work hours.
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
/// So many categories hold the contacts of any club.
constexpr int clubCategories = 20;
constexpr int clubKinds = 30;
constexpr int clubWaters = 12;
/// So many years before the clock's lie the oldest catches and bookings.
constexpr int clubYears = 20;

/// Makes the program folder of a club of that size.
void makeClub(const QString& folder, ClubSize size);
