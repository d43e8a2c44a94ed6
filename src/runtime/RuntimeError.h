#pragma once

#include <QString>

/// A failed statement: the number and the German words that a user of such a program knows.
/// Thrown by value; the routines' error tail shows both and goes on with the next statement.
struct RuntimeError {
    int number = 0;
    QString description;
};

/// The error of this number with its usual description ("Überlauf" for 6); a number without one of its own
/// gets the general wording. Where the description could name a subject, it is worded without one.
RuntimeError runtimeError(int number);

/// As above with the %1 in the description replaced: the file of 3024, 3045, 3051, 3056 and 3204, the folder
/// of 3044, the format of 3343, the table of 3078, the name of 3015 and 3265, the number of parameters of
/// 3061, the field of 3163, and for 3075 the reason. A description without a %1 stays as it is.
RuntimeError runtimeError(int number, const QString& subject);
