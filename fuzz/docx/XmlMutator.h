// SPDX-License-Identifier: MIT
// XmlMutator changes XML element by element, so that most of what it makes is still well-formed: it repeats,
// removes, moves and wraps elements and puts in those of Word documents.
// Thread: one at a time.
#pragma once

#include <QByteArray>

#include <random>

/// The same part of a document with one change. xml: need not be well-formed.
QByteArray mutatedXml(const QByteArray &xml, std::mt19937 &random);
