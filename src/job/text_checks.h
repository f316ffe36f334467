// Text rules shared by the validators of the job-ticket tree.
#ifndef ZUNDO_JOB_TEXT_CHECKS_H
#define ZUNDO_JOB_TEXT_CHECKS_H

#include <cctype>
#include <cstring>

// True for an empty text or one made only of whitespace.
inline bool isBlankText(const char *text) {
    for (const char *c = text; *c != '\0'; c++)
        if (!std::isspace(static_cast<unsigned char>(*c))) return false;
    return true;
}

inline bool containsBlank(const char *text) { return std::strchr(text, ' ') != nullptr; }

#endif
