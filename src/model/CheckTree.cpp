#include "model/CheckTree.h"

#include <vector>

namespace {

bool IsNode(const CCheck* check) {
    return check->Type == 0;
}
bool HasOneLink(const CCheck* check) {
    return IsNode(check) && check->Links.Values.Count == 1;
}

void PushLinks(const CCheck& check, std::vector<CCheck*>& waiting) {
    for (int link : {1, 0}) // link 0 is to be taken first
        if (CCheck* next = check.Links.Values[link])
            waiting.push_back(next);
}

// The first link of a node that has lost its other one gives way to what it leads to.
bool CollapseOneLink(CCheck& node) {
    CGrowArray<CCheck*>& links = node.Links.Values;
    for (int i = 0; i < links.Count; ++i) {
        CCheck* link = links[i];
        if (!HasOneLink(link))
            continue;
        CCheck* rest = link->Links.Values[0];
        delete link;
        links.RemoveAt(i);
        links.Add(rest);
        return true;
    }
    return false;
}

} // namespace

CCheck* CheckTree::MakeNode() {
    return new CCheck(0, 0, 0, 0, 1);
}

void CheckTree::Walk(CCheck* root, const std::function<void(CCheck&)>& visit) {
    std::vector<CCheck*> waiting{root};
    while (!waiting.empty()) {
        CCheck* check = waiting.back();
        waiting.pop_back();
        PushLinks(*check, waiting);
        visit(*check);
    }
}

CCheck* CheckTree::FindParent(CCheck* root, const CCheck* check) {
    CCheck* parent = nullptr;
    Walk(root, [&](CCheck& node) {
        const CGrowArray<CCheck*>& links = node.Links.Values;
        if (!parent && IsNode(&node) && (links[0] == check || links[1] == check))
            parent = &node;
    });
    return parent;
}

CCheck* CheckTree::Tidy(CCheck* root) {
    while (HasOneLink(root)) {
        CCheck* rest = root->Links.Values[0];
        delete root;
        root = rest;
    }
    std::vector<CCheck*> waiting{root};
    while (!waiting.empty()) {
        CCheck* node = waiting.back();
        waiting.pop_back();
        while (IsNode(node) && CollapseOneLink(*node)) {
        }
        PushLinks(*node, waiting);
    }
    return root;
}

void CheckTree::Free(CCheck* root) {
    Walk(root, [](CCheck& check) { delete &check; });
}
