// The six operations by the search in so many words: every midpoint asks the whole formula. The engine has to
// give the same bits and the same faults, and is timed beside this.
#pragma once

namespace PlainLoops {

// As the operations of the same names in the engine: they read and write the problem record.
void PrismaticFlowFromDepth();
void PrismaticDepthFromFlow();
void CircularFlowFromDepth();
void CircularDepthFromFlow();
void IrregFlowFromDepth();
void IrregDepthFromFlow();

// As ::SolveChannel.
void SolveChannel();

}  // namespace PlainLoops
