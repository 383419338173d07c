// The text keys of all that the module shows in a message: the one place where a check and its message meet.
// The dialogs, the frames and the screens use them with messages.h. The captions of controls are no messages;
// their keys are in the form that has the control. The messages of a pair of dates are in the rule of its
// screen.
#pragma once

namespace norvik::message {

/// Questions.
inline constexpr const char* kOverwriteFile = "UI12572";
inline constexpr const char* kExportAllColumns = "UI60007";
inline constexpr const char* kCancelRecords = "UI53250";
inline constexpr const char* kBookingPassed = "UI53317";

/// The ticked records and the columns of a list.
inline constexpr const char* kNothingTicked = "UI52869";
inline constexpr const char* kNothingFound = "UI42512";
inline constexpr const char* kTooManyRecords = "UI53329";
inline constexpr const char* kNoSums = "UI12581";
inline constexpr const char* kFirstColumnStays = "UI60005";
inline constexpr const char* kTopColumnHidden = "UI60006";

/// The captions of the counts and amounts of a batch, in one message.
inline constexpr const char* kSucceededCount = "UI51028";
inline constexpr const char* kSucceededAmount = "UI51029";
inline constexpr const char* kFailedCount = "UI51030";
inline constexpr const char* kFailedAmount = "UI51031";

/// Approval.
inline constexpr const char* kOpinionMissing = "UI12207";
inline constexpr const char* kOpinionTooLong = "UI52934";
inline constexpr const char* kNoFlow = "UI42801";

/// The day that a transaction is scheduled for.
inline constexpr const char* kBookingDateMissing = "UI42518";
inline constexpr const char* kBookingDateInvalid = "UI42985";
inline constexpr const char* kBookingDateEarly = "UI42987";
inline constexpr const char* kBookingDateLate = "UI42995";

/// Conditions.
inline constexpr const char* kNoStatusSelected = "UI44568";
inline constexpr const char* kFlowNumberInvalid = "UI44873";
inline constexpr const char* kMinimumMissing = "UI44564";
inline constexpr const char* kMaximumMissing = "UI44565";
inline constexpr const char* kMaximumNotPositive = "UI44566";
inline constexpr const char* kMinimumAboveMaximum = "UI44567";

/// A bill without what an enquiry identifies it by.
inline constexpr const char* kNoBillIdOrNumber = "UI44810";
inline constexpr const char* kNoBillId = "UI44418";

/// A date field.
inline constexpr const char* kNotEightDigits = "ET11019";
inline constexpr const char* kNoSuchDay = "ET11018";

}  // namespace norvik::message
