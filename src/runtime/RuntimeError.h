#pragma once

#include <QString>

/// A failed statement: the number and the German words that a user of such a program knows.
/// Thrown by value; the routines' error tail shows both and goes on with the next statement.
struct RuntimeError {
    int number = 0;
    QString description;
};

/// The error of this number with its usual description ("Überlauf" for 6); a number without one of its own
/// gets the general wording.
RuntimeError runtimeError(int number);

/// As above with the %1 in the description replaced (the file of 3024, the table of 3078, the name of 3265).
RuntimeError runtimeError(int number, const QString& subject);
