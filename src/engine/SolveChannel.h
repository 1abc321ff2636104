// Which operation solves which problem; the main window and the rating series ask here.
#pragma once

// Solves the problem record for its channel type and its SolveForFlow, and returns true; an unknown channel
// type runs nothing, leaves the record as it is and returns false. An EngineFault of the operation passes
// through.
bool SolveChannel();
