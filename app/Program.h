#pragma once

// Runs the program from start-up to the closing of the clock window; the exit code of the process.
int RunProgram();
