#pragma once

namespace zkp {

/// Whether what the surface tells of its selection is the user's doing. While the control itself moves the
/// selection (SelectionQuiet) it is not.
class SelectionNotices {
public:
    /// Whether a move of the selection is the user's.
    bool isHeard() const { return heard_; }
    /// Whether there is content that a move could be over.
    bool isContentSeen() const { return contentSeen_; }

    void hush() { heard_ = false; }
    void hear() { heard_ = true; }
    void seeContent() { contentSeen_ = true; }

private:
    friend class SelectionQuiet;

    bool heard_ = true;
    bool contentSeen_ = true;
};

} // namespace zkp
