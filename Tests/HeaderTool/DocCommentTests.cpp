#include "DocComment.h"

#include <gtest/gtest.h>

using HeaderTool::CleanDocComment;

TEST(DocComment, StripsMarkersAndLeadingStarsTrimsLinesAndDropsOuterBlankLines)
{
	EXPECT_EQ(CleanDocComment("/** One line. */"), "One line.");
	EXPECT_EQ(CleanDocComment("/**\n * First\n *\n *    Indented\n */"), "First\n\nIndented");
	EXPECT_EQ(CleanDocComment("/*\n\n   Plain block\n\n*/"), "Plain block");
	EXPECT_EQ(CleanDocComment("/*****\n ** Stars\n *****/"), "Stars");
	EXPECT_EQ(CleanDocComment("// First\n//   Second\n/// Third"), "First\nSecond\nThird");
}

TEST(DocComment, AnEmptyCommentGivesNoText)
{
	EXPECT_EQ(CleanDocComment(""), "");
	EXPECT_EQ(CleanDocComment("/** */"), "");
	EXPECT_EQ(CleanDocComment("//\n//"), "");
}
