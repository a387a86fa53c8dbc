#pragma once

#include "document/document.h"

#include <QRandomGenerator>

#include <memory>

namespace zm::test {

/// A layer of any kind with anything that a file can hold, and small pictures.
std::unique_ptr<Layer> randomLayer(QRandomGenerator &random);

/// Up to six such layers in a document of whole pixels.
std::unique_ptr<Document> randomDocument(QRandomGenerator &random);

/// The first thing in which two layers differ; empty for equal ones. Numbers are compared exactly, and what is drawn
/// anew from other fields, such as a texture's picture, not at all.
QString difference(const Layer &a, const Layer &b);

/// The same for documents; layers are told by their index.
QString difference(const Document &a, const Document &b);

} // namespace zm::test
