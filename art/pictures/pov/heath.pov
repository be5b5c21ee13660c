// heath.pov -- one flat ground cell of bushes, ferns and a stone or two: single
// clumps in the meadow, and in a row the rim of the play square.
// A point at height z needs min(x, y) >= 1.2247*z.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
#declare G1 = C("86B850"); #declare G2 = C("6FA348"); #declare G3 = C("9AC25C");
Bush(<0.36, 0.40, 0>, 0.125, G2, 201)
Bush(<0.52, 0.34, 0>, 0.085, G1, 202)
FlowerBush(<0.68, 0.62, 0>, 0.120, G1, C("F4EBC0"), 203)
Bush(<0.82, 0.52, 0>, 0.080, G2, 204)
Bush(<0.40, 0.70, 0>, 0.095, G1, 205)
FlowerBush(<0.24, 0.60, 0>, 0.070, G3, C("D99BC4"), 206)
Bush(<0.60, 0.86, 0>, 0.080, G2, 207)
Bush(<0.74, 0.26, 0>, 0.065, G3, 208)
Bush(<0.90, 0.80, 0>, 0.050, G3, 209)
Bush(<0.16, 0.30, 0>, 0.045, G3, 210)
Bush(<0.20, 0.84, 0>, 0.050, G1, 211)
sphere { 0, 1 scale <0.055,0.042,0.035> rotate z*30 translate <0.54,0.56,0.01> mPlain(C("B9B3A2")) }
sphere { 0, 1 scale <0.030,0.026,0.022> translate <0.47,0.54,0.01> mPlain(C("A59F8E")) }
// tufts of long grass
#declare Rn = seed(212);
#declare I = 0;
#while (I < 60)
  #declare Q = <0.12 + 0.78*rand(Rn), 0.12 + 0.78*rand(Rn), 0>;
  #declare K = 0;
  #while (K < 4)
    #declare T = Q + <0.035*(rand(Rn)-0.5), 0.035*(rand(Rn)-0.5), 0.05 + 0.03*rand(Rn)>;
    cone { Q, 0.008, T, 0.003 mPlain(Vary(C("86AE4A"), 0.2, Rn)) }
    #declare K = K + 1;
  #end
  #declare I = I + 1;
#end
