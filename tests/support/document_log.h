#pragma once

#include "document/document.h"

#include <QStringList>

namespace zm::test {

/// An id that reads as "#n" in a log.
QUuid testId(uint n);

/// Writes down what a document signals, in order: "objectInserted 1 #7", "selectionChanged #0" for a null id.
class DocumentLog : public QObject
{
public:
    explicit DocumentLog(const Document &document);

    /// The entries since the last call.
    QStringList take() { return std::exchange(m_entries, {}); }

private:
    QStringList m_entries;
};

/// Everything about a document that undo must bring back, as text: the selection is not among it.
QString describe(const Document &document);

} // namespace zm::test
