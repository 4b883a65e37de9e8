// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpSearch.h"

#include <QFile>
#include <QTextDocument>

#include <algorithm>

#include "ui/help/HelpPages.h"

namespace sprout {

namespace {

/// Each character of the text has the position that it has in the page's document.
QString TextOf(const HelpPage& page)
{
    QFile file(QLatin1Char(':') + PageUrl(page).path());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QTextDocument document;
    document.setHtml(QString::fromUtf8(file.readAll()));
    return document.toPlainText();
}

} // namespace

void HelpSearch::Look(const QString& wanted, int page)
{
    word = wanted.simplified();
    FindAll();
    const auto first =
        std::find_if(hits.begin(), hits.end(), [page](const HelpHit& candidate) { return candidate.page >= page; });
    number = first == hits.end() ? 0 : static_cast<int>(first - hits.begin());
}

void HelpSearch::Next()
{
    if (!hits.empty())
        number = (number + 1) % Count();
}

void HelpSearch::FindAll()
{
    hits.clear();
    if (word.isEmpty())
        return;
    if (texts.empty())
        for (const HelpPage& page : HelpPages())
            texts.push_back(TextOf(page));
    const auto length = static_cast<int>(word.size());
    for (std::size_t page = 0; page < texts.size(); ++page)
        for (qsizetype at = texts[page].indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = texts[page].indexOf(word, at + length, Qt::CaseInsensitive))
            hits.push_back({static_cast<int>(page), static_cast<int>(at), length});
}

} // namespace sprout
