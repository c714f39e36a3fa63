// SPDX-License-Identifier: MIT
// CompoundFile recognizes compound files (MS-CFB): the packages of office programs before 2007, and of
// encrypted documents since then. Their streams are not read.
// Thread: any.
#pragma once

#include <QByteArrayView>

#include <string_view>

bool isCompoundFile(QByteArrayView bytes);

/// Whether a compound file has a stream or storage of that name, in ASCII; case does not matter.
bool hasStream(QByteArrayView compoundFile, std::string_view name);
