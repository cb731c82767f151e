#pragma once
// What the line builder offers at each step of a line: the kinds of line,
// and for a Condition line the comparisons its subject allows. The lists
// themselves are the catalogue's; this only picks among them.

#include "script/catalogue.h"

namespace builder {

// The line kinds the first list offers: the Start Conditions and Start
// Actions in their words, then Condition, Action, Label and Comment.
const ChoiceList& LineKinds();

// The comparisons a subject takes, in its own number ("is"/"are"), with
// the count form for subjects counted rather than priced. Empty for a
// subject that takes none or takes point, number or truth choices instead.
ChoiceList ComparisonsFor(int subject);

// The subjects a Condition line may start with: the catalogue's list and
// the dice events, separators kept so the list reads as it is grouped.
const ChoiceList& Subjects();

// "is True"/"is False" (or "are") for the flag subjects; "on"/"off".
ChoiceList TruthChoices(int subject);

}  // namespace builder
