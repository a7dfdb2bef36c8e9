// What the precompiled header of the tests belongs to.
