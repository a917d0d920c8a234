-- Floating-point arithmetic on array elements: the sun and four planets over 50,000 steps of time.
local LAST = 4
local x, y, z, vx, vy, vz, m = {}, {}, {}, {}, {}, {}, {}
local pi = 3.141592653589793
local solarMass = 4 * pi * pi
local daysPerYear = 365.24

local function place(i, px, py, pz, ux, uy, uz, mass)
  x[i], y[i], z[i] = px, py, pz
  vx[i], vy[i], vz[i] = ux * daysPerYear, uy * daysPerYear, uz * daysPerYear
  m[i] = mass * solarMass
end

place(0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0)
place(1, 4.84143144246472090, -1.16032004402742839, -0.103622044471123109,
      0.00166007664274403694, 0.00769901118419740425, -0.0000690460016972063023, 0.000954791938424326609)
place(2, 8.34336671824457987, 4.12479856412430479, -0.403523417114321381,
      -0.00276742510726411021, 0.00499852801234917238, 0.0000230417297573763929, 0.000285885980666130812)
place(3, 12.8943695621391310, -15.1111514016986312, -0.223307578892655734,
      0.00296460137564761618, 0.00237847173959480950, -0.0000296589568540237556, 0.0000436624404335156298)
place(4, 15.3796971148509165, -25.9193146099879641, 0.179258772950371181,
      0.00268067772490389322, 0.00162824170038242295, -0.0000951592254519715870, 0.0000515138902046611451)

local sumX, sumY, sumZ = 0, 0, 0
for i = 0, LAST do
  sumX = sumX + vx[i] * m[i]
  sumY = sumY + vy[i] * m[i]
  sumZ = sumZ + vz[i] * m[i]
end
vx[0], vy[0], vz[0] = -sumX / solarMass, -sumY / solarMass, -sumZ / solarMass

local function advance(steps, span)
  local sqrt = math.sqrt
  for s = 1, steps do
    for i = 0, LAST do
      for j = i + 1, LAST do
        local dx, dy, dz = x[i] - x[j], y[i] - y[j], z[i] - z[j]
        local squared = dx * dx + dy * dy + dz * dz
        local pull = span / (squared * sqrt(squared))
        local mi, mj = m[i], m[j]
        vx[i] = vx[i] - dx * mj * pull
        vy[i] = vy[i] - dy * mj * pull
        vz[i] = vz[i] - dz * mj * pull
        vx[j] = vx[j] + dx * mi * pull
        vy[j] = vy[j] + dy * mi * pull
        vz[j] = vz[j] + dz * mi * pull
      end
    end
    for i = 0, LAST do
      x[i] = x[i] + span * vx[i]
      y[i] = y[i] + span * vy[i]
      z[i] = z[i] + span * vz[i]
    end
  end
end

local function energy()
  local sum = 0
  for i = 0, LAST do
    sum = sum + 0.5 * m[i] * (vx[i] * vx[i] + vy[i] * vy[i] + vz[i] * vz[i])
    for j = i + 1, LAST do
      local dx, dy, dz = x[i] - x[j], y[i] - y[j], z[i] - z[j]
      sum = sum - m[i] * m[j] / math.sqrt(dx * dx + dy * dy + dz * dz)
    end
  end
  return sum
end

advance(50000, 0.01)
print(string.format("%d", math.floor(energy() * 1000000000 + 0.5)))
