Pin   Input   a
