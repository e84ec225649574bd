// How a file's conversion ended, for people.

export const STATUSES = {
  converted: { name: 'converted', tone: 'good', says: 'every command was converted' },
  copied: { name: 'copied', tone: 'plain', says: 'it held nothing to convert' },
  incomplete: { name: 'incomplete', tone: 'bad', says: 'a command could not be converted' },
  ended: { name: 'broken off', tone: 'bad', says: 'the rest of the file is missing' },
  failed: { name: 'failed', tone: 'bad', says: 'no target was written' },
  skipped: { name: 'skipped', tone: 'warn', says: 'it was not tried' },
};
