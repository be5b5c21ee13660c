// heath.pov -- one flat ground cell of scrub: single thickets in the meadow, and
// in a row a hedge, the rim of the play square.  Uneven lumps and tall grass reach
// near all four edges, so that a row has no gaps; towards the lower edges the grass takes the meadow's
// colour, or a single thicket would show the cell's outline.
// A point at height z needs min(x, y) >= 1.2247*z.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
// A lump: a dome of small leaf clumps, lighter towards the sun.
#macro Lump(X, Y, R, Tall, Col, Seed)
  #local Rn = seed(Seed);
  #local O = <X, Y, R*0.40*Tall>;
  sphere { 0, R*0.90 scale <1,1,0.95*Tall> translate O mPlain(Col*0.36) }
  #local N = 60 + 700*R;
  #local I = 0;
  #while (I < N)
    #local Zz = 1 - 1.5*(I + rand(Rn))/N;
    #local Rr = sqrt(1 - Zz*Zz);
    #local A = 2.39996323*I + 1.2*rand(Rn);
    #local D = <Rr*cos(A), Rr*sin(A), Zz>;
    #local Lt = max(0, vdot(D, SunDir));
    #local K = 0.58 + 0.18*Zz + 0.36*Lt + 0.20*rand(Rn);
    #local Yl = 0.07*(2*rand(Rn) - 1) + 0.10*Lt;
    #local Q = 0.014 + 0.014*rand(Rn);
    sphere { 0, Q scale <1,1,0.75> translate O + R*(0.88 + 0.16*rand(Rn))*<D.x, D.y, D.z*Tall*0.92>
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
Lump(0.14, 0.47, 0.085, 0.60, cMid, 201)
Lump(0.47, 0.14, 0.090, 0.60, cDry, 202)
Lump(0.34, 0.38, 0.135, 1.00, cHigh, 203)
Lump(0.62, 0.33, 0.130, 0.95, cDeep, 204)
Lump(0.29, 0.67, 0.125, 0.95, cDry, 205)
Lump(0.59, 0.60, 0.150, 1.00, cMid, 206)
Lump(0.85, 0.52, 0.130, 1.00, cHigh, 207)
Lump(0.51, 0.86, 0.125, 1.05, cLow, 208)
Grass(0.25, 0.25, 0.16, 0.10, 50, cBlade, 211)
Grass(0.14, 0.78, 0.13, 0.10, 50, cBlade, 212)
Grass(0.80, 0.16, 0.15, 0.11, 50, cBlade, 213)
Grass(0.77, 0.77, 0.16, 0.13, 60, cFront, 214)
Grass(0.92, 0.28, 0.09, 0.11, 34, cFront, 215)
Grass(0.28, 0.90, 0.16, 0.10, 40, cFront, 216)
Grass(0.93, 0.64, 0.06, 0.12, 24, cFront, 217)
Grass(0.66, 0.93, 0.10, 0.12, 28, cFront, 218)
// a few flowers in the grass
#declare Rn = seed(231);
#declare I = 0;
#while (I < 7)
  #declare P = <0.72 + 0.2*rand(Rn), 0.10 + 0.2*rand(Rn), 0.05>;
  #if (I > 3) #declare P = <0.10 + 0.14*rand(Rn), 0.70 + 0.2*rand(Rn), 0.05>; #end
  sphere { P, 0.016 mPlain((mod(I, 2) = 0 ? C("F4EEDF") : C("F2D14A"))) }
  #declare I = I + 1;
#end
