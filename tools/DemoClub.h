#pragma once

class Database;

/// Fills a newly made database with an invented club: members and other contacts, waters, fish, users with
/// fewer rights, and the catches, work hours and stocking of the years `year` - 2 to `year`. The same year
/// always gives the same club. Writes all in one commit. Errors: those of the store.
void fillDemoClub(Database& database, int year);
