// Prints sunrise and sunset from the suncalc package (an independent implementation of the solar
// position formulas) for the places and dates the solar calculator's tests compare against.
// Run from a scratch folder where suncalc is installed, not from the repository:
//   mkdir -p /tmp/suncalc-ref && cd /tmp/suncalc-ref && npm install suncalc
//   node /path/to/tindra/scripts/solar-reference.mjs
import { createRequire } from 'node:module';

const require = createRequire(process.cwd() + '/');
const SunCalc = require('suncalc');

// name, latitude, longitude, local date (the time zone is only named for the test's use)
const places = [
  ['equator-greenwich', 0, 0, 'UTC', ['2024-03-20', '2024-11-03']],
  ['singapore', 1.29, 103.85, 'Asia/Singapore', ['2024-07-15']],
  ['oslo', 59.91, 10.75, 'Europe/Oslo', ['2024-05-18', '2024-12-21']],
  ['new-york', 40.71, -74.01, 'America/New_York', ['2024-03-09', '2024-03-10', '2024-03-11']],
  ['sydney', -33.87, 151.21, 'Australia/Sydney', ['2024-04-06', '2024-04-07']],
  ['buenos-aires', -34.6, -58.38, 'America/Argentina/Buenos_Aires', ['2024-12-21']],
  ['rovaniemi', 66.5, 25.73, 'Europe/Helsinki', ['2024-03-01', '2024-09-15', '2024-12-10']],
  ['antarctic-circle', -66.0, 140.0, 'Etc/GMT-10', ['2024-06-10', '2024-12-10']],
];

for (const [name, latitude, longitude, zone, dates] of places) {
  for (const date of dates) {
    // Local mean solar noon of the date, so suncalc picks that day's transit.
    const noon = new Date(Date.parse(`${date}T12:00:00Z`) - (longitude / 15) * 3600 * 1000);
    const times = SunCalc.getTimes(noon, latitude, longitude);
    const seconds = (d) => (isNaN(d) ? 'none' : Math.round(d.getTime() / 1000));
    console.log(
      `${name} ${latitude} ${longitude} ${zone} ${date} sunrise ${seconds(times.sunrise)} ` +
        `(${isNaN(times.sunrise) ? '-' : times.sunrise.toISOString()}) sunset ${seconds(times.sunset)} ` +
        `(${isNaN(times.sunset) ? '-' : times.sunset.toISOString()})`,
    );
  }
}
