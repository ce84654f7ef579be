#include "inbox.h"

int main() { return inboxTitle(R"({"aps":{"alert":{"title":"Hello"}}})") == "Hello" ? 0 : 1; }
