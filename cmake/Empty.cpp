// The one file of a target that stands for its precompiled headers.
