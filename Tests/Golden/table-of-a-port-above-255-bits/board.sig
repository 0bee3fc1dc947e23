time a =>
