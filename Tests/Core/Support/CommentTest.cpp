#include "Core/Support/Comment.h"

#include <memory>
#include <utility>

#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(Comment, IsATextWithAttributes) {
    Comment comment("first line\n");
    comment.setDouble("column", 4);
    EXPECT_EQ(comment.getText(), "first line\n");
    comment.setText("other");
    EXPECT_EQ(comment.getText(), "other");
    EXPECT_EQ(comment.getDouble("column", false), 4.0);
    EXPECT_EQ(Comment(comment).getText(), "other");
}

TEST(CommentableObject, HasNoCommentWhenItIsBuiltWithAnEmptyText) {
    CommentableObject object("");
    EXPECT_TRUE(object.hasNoComment());
    EXPECT_EQ(object.getCommentText(), "");
    EXPECT_EQ(object.getComment().getText(), "");
    EXPECT_TRUE(object.hasNoComment());
}

TEST(CommentableObject, HoldsTheTextItIsBuiltWith) {
    CommentableObject object("why");
    EXPECT_FALSE(object.hasNoComment());
    EXPECT_EQ(object.getCommentText(), "why");
    EXPECT_EQ(object.getComment().getText(), "why");
}

TEST(CommentableObject, TakesAnotherText) {
    CommentableObject object("");
    object.setCommentText("a");
    EXPECT_EQ(object.getCommentText(), "a");
    object.getComment().setText("b");
    EXPECT_EQ(object.getCommentText(), "b");
    object.setCommentText("");
    EXPECT_TRUE(object.hasNoComment());
}

TEST(CommentableObject, KeepsTheAttributesOfItsCommentWhenTheTextGoes) {
    CommentableObject object("a");
    object.getComment().setBool("kept", true);
    object.setCommentText("");
    EXPECT_TRUE(object.getComment().getBool("kept", false));
}

TEST(CommentableObject, SharesNothingWithItsCopy) {
    CommentableObject object("a");
    object.getComment().setBool("kept", true);
    CommentableObject copy(object);
    object.setCommentText("b");
    EXPECT_EQ(copy.getCommentText(), "a");
    EXPECT_TRUE(copy.getComment().getBool("kept", false));
    copy = object;
    object.setCommentText("c");
    EXPECT_EQ(copy.getCommentText(), "b");
    const CommentableObject& self = copy;
    copy = self;
    EXPECT_EQ(copy.getCommentText(), "b");
    copy = CommentableObject("");
    EXPECT_TRUE(copy.hasNoComment());
}

TEST(CommentableObject, TakesItsCommentAlongWhenItMoves) {
    CommentableObject object("a");
    const Comment* comment = &object.getComment();
    CommentableObject moved(std::move(object));
    EXPECT_EQ(&moved.getComment(), comment);
    EXPECT_EQ(moved.getCommentText(), "a");
}

}  // namespace
}  // namespace tarnsim
