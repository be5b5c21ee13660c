// heath.pov -- one flat ground cell of round shrubs: single clumps in the
// meadow, and in a row the rim of the play square.  The cell returns so often
// that nothing in it may stand out: greens only, no flower, no stone.
// A point at height z needs min(x, y) >= 1.2247*z.
#version 3.7;
#include "iso.inc"
#include "kit.inc"
Ground()
// A shrub: a dome of small leaf clumps, lighter towards the sun.
#macro Shrub(P, R, Col, Seed)
  #local Rn = seed(Seed);
  #local O = P + z*R*0.45;
  sphere { 0, R*0.93 scale <1,1,0.95> translate O mPlain(Col*0.45) }
  #local I = 0;
  #while (I < 150)
    #local Zz = 1 - 1.5*(I + rand(Rn))/150;
    #local Rr = sqrt(1 - Zz*Zz);
    #local A = 2.39996323*I + 1.2*rand(Rn);
    #local D = <Rr*cos(A), Rr*sin(A), Zz>;
    #local Lt = max(0, vdot(D, SunDir));
    #local K = 0.62 + 0.16*Zz + 0.34*Lt + 0.16*rand(Rn);
    #local Yl = 0.05*(2*rand(Rn) - 1) + 0.10*Lt;
    sphere { 0, R*(0.10 + 0.06*rand(Rn)) scale <1,1,0.75> translate O + R*0.95*<D.x, D.y, D.z*0.95>
      mPlain(<Col.x*K*(1+Yl), Col.y*K, Col.z*K*(1-Yl)>) }
    #local I = I + 1;
  #end
#end
Shrub(<0.62, 0.40, 0>, 0.165, C("588F3A"), 201)
Shrub(<0.42, 0.64, 0>, 0.190, C("69A344"), 202)
Shrub(<0.74, 0.72, 0>, 0.150, C("80AE48"), 203)
