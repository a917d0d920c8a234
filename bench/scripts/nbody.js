// Floating-point arithmetic on array elements: the sun and four planets over 50,000 steps of time.
var LAST = 4;
var x = [], y = [], z = [], vx = [], vy = [], vz = [], m = [];
var pi = 3.141592653589793, solarMass = 4 * pi * pi, daysPerYear = 365.24;

function place(i, px, py, pz, ux, uy, uz, mass) {
  x[i] = px; y[i] = py; z[i] = pz;
  vx[i] = ux * daysPerYear; vy[i] = uy * daysPerYear; vz[i] = uz * daysPerYear;
  m[i] = mass * solarMass;
}

place(0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0);
place(1, 4.84143144246472090, -1.16032004402742839, -0.103622044471123109,
      0.00166007664274403694, 0.00769901118419740425, -0.0000690460016972063023, 0.000954791938424326609);
place(2, 8.34336671824457987, 4.12479856412430479, -0.403523417114321381,
      -0.00276742510726411021, 0.00499852801234917238, 0.0000230417297573763929, 0.000285885980666130812);
place(3, 12.8943695621391310, -15.1111514016986312, -0.223307578892655734,
      0.00296460137564761618, 0.00237847173959480950, -0.0000296589568540237556, 0.0000436624404335156298);
place(4, 15.3796971148509165, -25.9193146099879641, 0.179258772950371181,
      0.00268067772490389322, 0.00162824170038242295, -0.0000951592254519715870, 0.0000515138902046611451);

var sumX = 0, sumY = 0, sumZ = 0;
for (var i = 0; i <= LAST; i++) {
  sumX += vx[i] * m[i];
  sumY += vy[i] * m[i];
  sumZ += vz[i] * m[i];
}
vx[0] = -sumX / solarMass; vy[0] = -sumY / solarMass; vz[0] = -sumZ / solarMass;

function advance(steps, span) {
  for (var s = 0; s < steps; s++) {
    for (var i = 0; i <= LAST; i++) {
      for (var j = i + 1; j <= LAST; j++) {
        var dx = x[i] - x[j], dy = y[i] - y[j], dz = z[i] - z[j];
        var squared = dx * dx + dy * dy + dz * dz;
        var pull = span / (squared * Math.sqrt(squared));
        var mi = m[i], mj = m[j];
        vx[i] -= dx * mj * pull;
        vy[i] -= dy * mj * pull;
        vz[i] -= dz * mj * pull;
        vx[j] += dx * mi * pull;
        vy[j] += dy * mi * pull;
        vz[j] += dz * mi * pull;
      }
    }
    for (var i = 0; i <= LAST; i++) {
      x[i] += span * vx[i];
      y[i] += span * vy[i];
      z[i] += span * vz[i];
    }
  }
}

function energy() {
  var sum = 0;
  for (var i = 0; i <= LAST; i++) {
    sum += 0.5 * m[i] * (vx[i] * vx[i] + vy[i] * vy[i] + vz[i] * vz[i]);
    for (var j = i + 1; j <= LAST; j++) {
      var dx = x[i] - x[j], dy = y[i] - y[j], dz = z[i] - z[j];
      sum -= m[i] * m[j] / Math.sqrt(dx * dx + dy * dy + dz * dz);
    }
  }
  return sum;
}

advance(50000, 0.01);
console.log(String(Math.round(energy() * 1000000000)));
