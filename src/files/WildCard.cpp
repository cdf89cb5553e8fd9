#include "files/WildCard.h"

bool MatchesWildCard(char const* name, char const* pattern) {
    for (;; ++name, ++pattern) {
        if (*pattern == '*') {
            ++pattern;
            if (*pattern == 0) {
                return true;
            }
            // Try the rest of the pattern at each remaining position, the end of the name
            // included.
            for (;; ++name) {
                if (MatchesWildCard(name, pattern)) {
                    return true;
                }
                if (*name == 0) {
                    return false;
                }
            }
        }
        if (*pattern == 0 || *name == 0) {
            return *pattern == *name;
        }
        if (*pattern != '?' && *pattern != *name) {
            return false;
        }
    }
}
