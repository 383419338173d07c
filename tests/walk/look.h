// What an operator would find wrong with a form by looking at it, whatever form it is. The walk through all
// forms uses it at each size and font; it changes nothing.
#pragma once

#include <string>
#include <vector>

class TForm;

/// A sentence for each fault of what the form shows: two siblings that overlap, a control that is outside its
/// parent or nowhere, one that has less room than it needs, one that draws the same with and without its
/// content.
std::vector<std::string> FaultsOf(TForm* form);
