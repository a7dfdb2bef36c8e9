// The functions of api/models.api. A fault is one that the tests of real functions would have to find.
#pragma once

enum class Fault {
    none,
    keepsTaps,     // a state refers to the taps it was made from
    stateDiffers,  // one variant leaves another state behind
    writesBehind,  // ... behind the state's memory
    writesConst,   // ... into a state that is only read
    writesRefused, // ... in spite of an error
    writesGap,     // ... between rows
    readsGap       // results depend on what lies there
};
extern Fault fault;
extern int openHandles;
