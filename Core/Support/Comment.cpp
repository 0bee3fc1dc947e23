#include "Core/Support/Comment.h"

namespace tarnsim {

CommentableObject::CommentableObject(const std::string& text) {
    setCommentText(text);
}

CommentableObject::CommentableObject(const CommentableObject& other)
    : comment_(other.comment_ ? std::make_unique<Comment>(*other.comment_) : nullptr) {}

CommentableObject& CommentableObject::operator=(const CommentableObject& other) {
    CommentableObject copy(other);
    comment_.swap(copy.comment_);
    return *this;
}

Comment& CommentableObject::getComment() {
    if (!comment_) comment_ = std::make_unique<Comment>("");
    return *comment_;
}

std::string CommentableObject::getCommentText() const {
    return comment_ ? comment_->getText() : "";
}

void CommentableObject::setCommentText(const std::string& text) {
    if (comment_ || !text.empty()) getComment().setText(text);
}

bool CommentableObject::hasNoComment() const {
    return !comment_ || comment_->getText().empty();
}

}  // namespace tarnsim
