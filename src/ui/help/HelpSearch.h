// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace sprout {

/// A place in the help book where a searched word stands.
struct HelpHit {
    int page;
    int position; ///< in the page's document
    int length;
};

/// Searches all pages of the help book for a word, in any case of letters.
class HelpSearch {
public:
    /// Starts a new search. The first hit is on page `page`, or else on the next page that has one; after the last page
    /// comes the first one.
    void Look(const QString& word, int page);

    /// Goes to the next hit; after the last one comes the first one.
    void Next();

    /// What is searched for; empty if nothing is.
    [[nodiscard]] const QString& Word() const { return word; }
    [[nodiscard]] int Count() const { return static_cast<int>(hits.size()); }
    /// The number of the hit in the book, from 0.
    [[nodiscard]] int Number() const { return number; }
    /// Only if there is one.
    [[nodiscard]] const HelpHit& Hit() const { return hits[static_cast<std::size_t>(number)]; }

private:
    void FindAll();

    std::vector<QString> texts; ///< of the pages, read for the first search
    QString word;
    std::vector<HelpHit> hits;
    int number = 0;
};

} // namespace sprout
