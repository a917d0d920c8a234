# Floating-point arithmetic on array elements: the sun and four planets over 50,000 steps of time.
import math

COUNT = 5
PI = 3.141592653589793
SOLAR_MASS = 4 * PI * PI
DAYS_PER_YEAR = 365.24
x, y, z = [0] * COUNT, [0] * COUNT, [0] * COUNT
vx, vy, vz = [0] * COUNT, [0] * COUNT, [0] * COUNT
m = [0] * COUNT


def place(i, px, py, pz, ux, uy, uz, mass):
    x[i] = px
    y[i] = py
    z[i] = pz
    vx[i] = ux * DAYS_PER_YEAR
    vy[i] = uy * DAYS_PER_YEAR
    vz[i] = uz * DAYS_PER_YEAR
    m[i] = mass * SOLAR_MASS


place(0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0)
place(1, 4.84143144246472090, -1.16032004402742839, -0.103622044471123109,
      0.00166007664274403694, 0.00769901118419740425, -0.0000690460016972063023, 0.000954791938424326609)
place(2, 8.34336671824457987, 4.12479856412430479, -0.403523417114321381,
      -0.00276742510726411021, 0.00499852801234917238, 0.0000230417297573763929, 0.000285885980666130812)
place(3, 12.8943695621391310, -15.1111514016986312, -0.223307578892655734,
      0.00296460137564761618, 0.00237847173959480950, -0.0000296589568540237556, 0.0000436624404335156298)
place(4, 15.3796971148509165, -25.9193146099879641, 0.179258772950371181,
      0.00268067772490389322, 0.00162824170038242295, -0.0000951592254519715870, 0.0000515138902046611451)

sumX = sumY = sumZ = 0
for body in range(COUNT):
    sumX += vx[body] * m[body]
    sumY += vy[body] * m[body]
    sumZ += vz[body] * m[body]
vx[0] = -sumX / SOLAR_MASS
vy[0] = -sumY / SOLAR_MASS
vz[0] = -sumZ / SOLAR_MASS


def advance(steps, span):
    sqrt = math.sqrt
    for _ in range(steps):
        for i in range(COUNT):
            for j in range(i + 1, COUNT):
                dx = x[i] - x[j]
                dy = y[i] - y[j]
                dz = z[i] - z[j]
                squared = dx * dx + dy * dy + dz * dz
                pull = span / (squared * sqrt(squared))
                mi = m[i]
                mj = m[j]
                vx[i] -= dx * mj * pull
                vy[i] -= dy * mj * pull
                vz[i] -= dz * mj * pull
                vx[j] += dx * mi * pull
                vy[j] += dy * mi * pull
                vz[j] += dz * mi * pull
        for i in range(COUNT):
            x[i] += span * vx[i]
            y[i] += span * vy[i]
            z[i] += span * vz[i]


def energy():
    total = 0
    for i in range(COUNT):
        total += 0.5 * m[i] * (vx[i] * vx[i] + vy[i] * vy[i] + vz[i] * vz[i])
        for j in range(i + 1, COUNT):
            dx = x[i] - x[j]
            dy = y[i] - y[j]
            dz = z[i] - z[j]
            total -= m[i] * m[j] / math.sqrt(dx * dx + dy * dy + dz * dz)
    return total


advance(50000, 0.01)
print(round(energy() * 1000000000))
