// What was measured, for people and for programs.
#pragma once
#include "run.h"
#include <cstdio>

namespace bench {

void printMachine(bool withCurve);
void printHeading(const std::vector<std::string>& variants); // the columns
void print(const Result& result, const std::vector<std::string>& variants);
void printSummary(const std::vector<Result>& results);
bool writeJson(const char* file, const std::vector<Result>& results);

} // namespace bench
