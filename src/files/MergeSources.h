// The working folders of a merge, and the unpacking of what is merged.
#pragma once

#include "files/MergeTree.h"

#include <functional>
#include <vector>

// Told how much of the work is done.
using MergeProgress = std::function<void(int done, int total)>;

// The folders under the run folder. What an earlier merge left in them is gone when a new one begins.
class MergeFolders {
public:
    explicit MergeFolders(const CString& runFolder) : Result(runFolder + "/Merge") {}

    bool Prepare() const;
    // Puts one unpacked source, with all that is in it, in the place of the result.
    bool MakeResultOf(const MergeSource& source) const;
    void RemoveSources() const;
    CString SourceFolder(int index) const;

    const CString Result; // holds the merged XML and the folders of side files

private:
    CString Sources() const { return Result + "/FilesToBeMerged"; }
};

// Unpacks the file with that index. A failure is not told: such a source has no XML. `outReason` takes it.
MergeSource UnpackMergeSource(const MergeFolders& folders, int index, const CString& path,
                              CString* outReason = nullptr);

// The steps of a merge are the unpacking and the walking of each file.
class MergeSteps {
public:
    MergeSteps(const MergeProgress& progress, qsizetype files)
        : m_progress(progress), m_total(static_cast<int>(2 * files)) {}

    void Next() {
        ++m_done;
        if (m_progress)
            m_progress(m_done, m_total);
    }
    void Finish() {
        if (m_progress && m_done < m_total)
            m_progress(m_total, m_total);
    }

private:
    const MergeProgress& m_progress;
    int m_total;
    int m_done = 0;
};
