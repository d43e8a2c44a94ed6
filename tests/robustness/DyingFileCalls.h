#pragma once

/// Where a process dies among the calls with which the database library changes files.
enum class Death {
    BeforeCall,
    InCall, ///< a write has brought half of its bytes, another call all it does
};

/// From here on the process kills itself at its `place`th such call, counted from 1.
void dieAtFileCall(int place, Death death);
