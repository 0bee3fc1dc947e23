#pragma once

#include <memory>
#include <string>

#include "Core/Support/Dict.h"

namespace tarnsim {

/// A comment of a file: its text, lines ended by line feeds, and room for attributes.
class Comment : public Dict {
public:
    explicit Comment(const std::string& text) : text_(text) {}

    const std::string& getText() const { return text_; }
    void setText(const std::string& text) { text_ = text; }

private:
    std::string text_;
};

/// Something in front of which a comment can stand. Holds its own Comment, which is made when it is first needed.
class CommentableObject {
public:
    explicit CommentableObject(const std::string& text = "");
    virtual ~CommentableObject() = default;
    CommentableObject(const CommentableObject& other);
    CommentableObject& operator=(const CommentableObject& other);
    CommentableObject(CommentableObject&&) noexcept = default;
    CommentableObject& operator=(CommentableObject&&) noexcept = default;

    Comment& getComment();
    std::string getCommentText() const;
    void setCommentText(const std::string& text);
    bool hasNoComment() const;

private:
    std::unique_ptr<Comment> comment_;  ///< null stands for a comment without text and attributes
};

}  // namespace tarnsim
