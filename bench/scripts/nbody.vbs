' Floating-point arithmetic on array elements: the sun and four planets over 50,000 steps of time. The units are
' astronomical ones, years and such masses that the constant of gravitation is one.
Const LAST = 4
Dim x(4), y(4), z(4), vx(4), vy(4), vz(4), m(4)
Dim pi, solarMass, daysPerYear
pi = 3.141592653589793 : solarMass = 4 * pi * pi : daysPerYear = 365.24

Sub Place(i, px, py, pz, ux, uy, uz, mass)
  x(i) = px : y(i) = py : z(i) = pz
  vx(i) = ux * daysPerYear : vy(i) = uy * daysPerYear : vz(i) = uz * daysPerYear : m(i) = mass * solarMass
End Sub

Place 0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0
Place 1, 4.84143144246472090, -1.16032004402742839, -0.103622044471123109, _
      0.00166007664274403694, 0.00769901118419740425, -0.0000690460016972063023, 0.000954791938424326609
Place 2, 8.34336671824457987, 4.12479856412430479, -0.403523417114321381, _
      -0.00276742510726411021, 0.00499852801234917238, 0.0000230417297573763929, 0.000285885980666130812
Place 3, 12.8943695621391310, -15.1111514016986312, -0.223307578892655734, _
      0.00296460137564761618, 0.00237847173959480950, -0.0000296589568540237556, 0.0000436624404335156298
Place 4, 15.3796971148509165, -25.9193146099879641, 0.179258772950371181, _
      0.00268067772490389322, 0.00162824170038242295, -0.0000951592254519715870, 0.0000515138902046611451

' The sun moves so that the whole stays where it is.
Dim body, sumX, sumY, sumZ
sumX = 0 : sumY = 0 : sumZ = 0
For body = 0 To LAST
  sumX = sumX + vx(body) * m(body) : sumY = sumY + vy(body) * m(body) : sumZ = sumZ + vz(body) * m(body)
Next
vx(0) = -sumX / solarMass : vy(0) = -sumY / solarMass : vz(0) = -sumZ / solarMass

Sub Advance(steps, span)
  Dim s, i, j, dx, dy, dz, squared, pull, mi, mj
  For s = 1 To steps
    For i = 0 To LAST
      For j = i + 1 To LAST
        dx = x(i) - x(j) : dy = y(i) - y(j) : dz = z(i) - z(j)
        squared = dx * dx + dy * dy + dz * dz
        pull = span / (squared * Sqr(squared))
        mi = m(i) : mj = m(j)
        vx(i) = vx(i) - dx * mj * pull
        vy(i) = vy(i) - dy * mj * pull
        vz(i) = vz(i) - dz * mj * pull
        vx(j) = vx(j) + dx * mi * pull
        vy(j) = vy(j) + dy * mi * pull
        vz(j) = vz(j) + dz * mi * pull
      Next
    Next
    For i = 0 To LAST
      x(i) = x(i) + span * vx(i) : y(i) = y(i) + span * vy(i) : z(i) = z(i) + span * vz(i)
    Next
  Next
End Sub

Function Energy()
  Dim i, j, sum, dx, dy, dz
  sum = 0
  For i = 0 To LAST
    sum = sum + 0.5 * m(i) * (vx(i) * vx(i) + vy(i) * vy(i) + vz(i) * vz(i))
    For j = i + 1 To LAST
      dx = x(i) - x(j) : dy = y(i) - y(j) : dz = z(i) - z(j)
      sum = sum - m(i) * m(j) / Sqr(dx * dx + dy * dy + dz * dz)
    Next
  Next
  Energy = sum
End Function

Advance 50000, 0.01
WScript.Echo CLng(Energy() * 1000000000)
