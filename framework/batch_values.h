// Values that the batch actions take from records and answers.
#pragma once

#include <string>

#include "data/corvane.h"

namespace norvik {

// Why a record failed, from ERRCODE and ERRINF of an answer's row: the information alone where there is no
// code, the host's text for a code without information, both as "[code]information", and a text that the
// bank gave no reason where both are empty.
std::string FailureText(const std::string& code, const std::string& information);

// The amount of a record in a request to cancel it: BUSSUM where the record has that field, otherwise PAYAMT;
// "0" where the value is empty.
std::string CancelAmount(const corvane::Row& record);

}  // namespace norvik
