#pragma once

/// Call when another program has been started. Shows the hourglass over the whole program until a window of
/// another one has come up, or until some seconds have passed: there is no way to know that none will come.
void awaitOtherProgram();
