#pragma once

#include "data/corvane.h"
#include "demohost/bank/database.h"

namespace demohost {

// The statement's rows as a list named "resultList", columns under their names, texts in the code page.
corvane::List ResultList(Statement& statement);

// An answer with the list, and the number of its rows in TOTALNM.
corvane::CorvaneStream Answer(corvane::List& list);

}  // namespace demohost
