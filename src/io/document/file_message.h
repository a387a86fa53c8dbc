#pragma once

#include <QCoreApplication>

namespace zm {

/// The translation context of all that reading and writing a document file tells people: FileMessage::tr.
struct FileMessage
{
    Q_DECLARE_TR_FUNCTIONS(ZelmoraDocumentIO)
};

} // namespace zm
