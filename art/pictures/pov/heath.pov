// heath.pov -- one flat ground cell of scrub: single thickets in the meadow, and
// in a row a hedge, the rim of the play square.  Shrubs and low growth reach all four
// edges at their middle, so that a row has no gaps; in the corners the meadow goes on,
// or a single thicket would show the cell's outline.
// A point at height z needs min(x, y) >= 1.2247*z.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
// A lump: a shrub of small leaf clumps, lighter towards the sun, its outline
// uneven as shoots come out of it.
#macro Lump(X, Y, R, Tall, Col, Seed)
  #local Rn = seed(Seed);
  #local O = <X, Y, R*0.40*Tall>;
  sphere { 0, R*0.86 scale <1,1,0.95*Tall> translate O mPlain(Col*0.46) }
  #local Ph = 6.28*rand(Rn);
  #local N = 90 + 1500*R;
  #local I = 0;
  #while (I < N)
    #local Zz = 1 - 1.5*(I + rand(Rn))/N;
    #local Rr = sqrt(1 - Zz*Zz);
    #local A = 2.39996323*I + 1.2*rand(Rn);
    #local D = <Rr*cos(A), Rr*sin(A), Zz>;
    #local Lt = max(0, vdot(D, SunDir));
    #local K = 0.62 + 0.18*Zz + 0.36*Lt + 0.22*rand(Rn);
    #local Yl = 0.08*(2*rand(Rn) - 1) + 0.10*Lt;
    #local Bulge = 0.90 + 0.09*sin(2*A + Ph + 2*Zz) + 0.07*sin(5*A - Ph) + 0.16*pow(rand(Rn), 2);
    #local Q = 0.009 + 0.011*rand(Rn);
    sphere { 0, Q scale <1,1,0.75> translate O + R*Bulge*<D.x, D.y, D.z*Tall*0.92>
      mPlain(<Col.x*K*(1+Yl), Col.y*K, Col.z*K*(1-Yl)>) }
    #local I = I + 1;
  #end
#end
// Tall grass round a place: blades that lean outwards.
#macro Grass(X, Y, Spread, High, N, Col, Seed)
  #local Rn = seed(Seed);
  #local I = 0;
  #while (I < N)
    #local P = <X + Spread*(2*rand(Rn)-1), Y + Spread*(2*rand(Rn)-1), 0>;
    #local H = min(High*(0.5 + 0.5*rand(Rn)), max(0.01, min(P.x, P.y)/1.3));
    #local K = 0.70 + 0.55*rand(Rn);
    cone { P, 0.009, P + <0.05*(2*rand(Rn)-1), 0.05*(2*rand(Rn)-1), H>, 0.004 mPlain(Vary(Col*K, 0.08, Rn)) }
    #local I = I + 1;
  #end
#end
#declare cLow = C("4C7F34"); #declare cMid = C("588F3A"); #declare cHigh = C("69A344");
#declare cDry = C("86A84A"); #declare cDeep = C("3F742E"); #declare cBlade = C("7FA048"); #declare cFront = C("74A042")*1.25;
// Eight shrubs of all sizes.
Lump(0.32, 0.35, 0.120, 0.90, cHigh, 203)
Lump(0.62, 0.28, 0.110, 0.76, cDeep, 204)
Lump(0.255, 0.64, 0.100, 0.78, cDry, 205)
Lump(0.56, 0.57, 0.170, 1.05, cMid, 206)
Lump(0.80, 0.44, 0.120, 0.95, cHigh, 207)
Lump(0.44, 0.82, 0.125, 1.00, cLow, 208)
Lump(0.79, 0.72, 0.085, 1.05, cDry, 209)
Lump(0.66, 0.86, 0.070, 1.10, cHigh, 210)
// Low growth at the middle of each edge, which meets its like in the next cell.
// The corners are left to the meadow, so that a single thicket is round.
Lump(0.095, 0.37, 0.060, 0.50, cDeep, 221)
Lump(0.105, 0.51, 0.070, 0.50, cMid, 222)
Lump(0.100, 0.66, 0.060, 0.50, cLow, 223)
Lump(0.36, 0.095, 0.060, 0.50, cMid, 224)
Lump(0.50, 0.105, 0.070, 0.50, cDeep, 225)
Lump(0.64, 0.095, 0.060, 0.50, cHigh, 226)
Lump(0.935, 0.37, 0.055, 1.00, cLow, 227)
Lump(0.925, 0.52, 0.065, 0.95, cDeep, 228)
Lump(0.920, 0.66, 0.065, 0.90, cMid, 229)
Lump(0.34, 0.940, 0.050, 1.00, cHigh, 230)
Lump(0.51, 0.935, 0.055, 0.95, cDeep, 231)
Grass(0.27, 0.24, 0.10, 0.09, 26, cBlade, 211)
Grass(0.17, 0.75, 0.07, 0.09, 16, cFront, 212)
Grass(0.76, 0.18, 0.08, 0.10, 16, cFront, 213)
Grass(0.84, 0.84, 0.11, 0.11, 40, cFront, 214)
Grass(0.90, 0.29, 0.07, 0.11, 20, cFront, 215)
Grass(0.28, 0.88, 0.08, 0.10, 20, cFront, 216)
Grass(0.94, 0.62, 0.05, 0.12, 20, cFront, 217)
Grass(0.64, 0.95, 0.06, 0.12, 20, cFront, 218)
// a few flowers in the grass
#declare Rn = seed(231);
#declare I = 0;
#while (I < 7)
  #declare P = <0.74 + 0.1*rand(Rn), 0.14 + 0.1*rand(Rn), 0.05>;
  #if (I > 3) #declare P = <0.13 + 0.1*rand(Rn), 0.71 + 0.1*rand(Rn), 0.05>; #end
  sphere { P, 0.016 mPlain((mod(I, 2) = 0 ? C("F4EEDF") : C("F2D14A"))) }
  #declare I = I + 1;
#end
