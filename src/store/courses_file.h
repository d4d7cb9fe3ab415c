#pragma once

#include <string>

// The file "courses" in the current directory: saved designs, records of 48 bytes, only ever
// appended.

// The number of whole records; 0 without a file.
int countSavedCourses();

// The course of a record, from 0, as it was designed: up to and including its "F". Empty if there
// is no such record or if its text is no course.
std::string readSavedCourse(int index);

// Appends courseText as a record. False if that fails at any point; the file is as it was then.
bool saveDesign();
