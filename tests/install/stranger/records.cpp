// A program of someone else: reads an answer, changes it, writes it, and meets a text that is refused.
#include <data/corvane.h>
#include <platform/host_api.h>

#include <iostream>

int main() {
  corvane::CorvaneStream answer(
      "<stream><list name=\"resultList\"><row><BILLNUM>1</BILLNUM></row></list></stream>");
  answer.getList("resultList")[0]["BILLNUM"] = "2";
  std::cout << answer.toString() << '\n';
  try {
    const corvane::Row row("<row>");
  } catch (const corvane::TException& failure) {
    std::cout << failure.getMessage(",") << '\n';
  }
  return norvik_mutex_open("nobody's") == 0 ? 0 : 1;
}
