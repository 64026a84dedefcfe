// The precompiled header of the tests is made with this file.
