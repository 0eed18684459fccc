// The hostile documents that are too large to be kept: each is made when it is tried.
#pragma once

#include <QByteArray>
#include <functional>
#include <vector>

struct MadeDocument {
    const char* name;
    std::function<QByteArray()> bytes;
    const char* expected; // as in corpus/documents.txt
};

const std::vector<MadeDocument>& MadeDocuments();
